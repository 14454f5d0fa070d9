#pragma once

namespace host {

/// Has every large block of this process's heap come from the system by itself and go back to it.
/// Otherwise the heap learns from the first large ones to keep such blocks, and what covers, files
/// and a library's rows took for a moment stays with the process.
void give_large_blocks_back();

}  // namespace host
