#pragma once

namespace host::application {

/// Opens the phone's library to look into it: the index as it is now, and a player that is silent,
/// since the home screen plays. Without a library there is no music, and the log says why.
void open_shared_library(bool is_stepped);

}  // namespace host::application
