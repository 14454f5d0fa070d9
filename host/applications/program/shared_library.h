#pragma once

#include <cstddef>
#include <cstdint>

namespace host::application {

/// Opens the phone's library for reading: the index as it is now, and a silent player, since the
/// home screen plays. If that fails there is no music, and the log says why.
void open_shared_library(bool is_stepped);

/// Reads the index again when the home screen reports another library than before.
void follow_shared_library(std::uint64_t library_number);

/// The number of songs in the phone's library, for a process without the system's media classes.
std::size_t count_of_shared_songs();

}  // namespace host::application
