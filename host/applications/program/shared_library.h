#pragma once

#include <cstddef>

namespace host::application {

/// Opens the phone's library to look into it: the index as it is now, and a player that is silent,
/// since the home screen plays. Without a library there is no music, and the log says why.
void open_shared_library(bool is_stepped);

/// How many songs the phone's library has, for a process without the system's media classes.
std::size_t count_of_shared_songs();

}  // namespace host::application
