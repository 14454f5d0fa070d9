#pragma once

namespace host {

/// Makes the heap of this process allocate every large block directly from the system and return it
/// when freed. Otherwise the first large blocks would teach the heap to keep them, and the memory
/// used briefly for covers, files and a library's rows would stay with the process.
void give_large_blocks_back();

}  // namespace host
