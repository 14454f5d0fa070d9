#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/media/library.h"

namespace host::media_player {

/// What a library has at the paths of files and folders.
struct SongsAt {
  std::vector<std::uint64_t> songs;  // in the order of the paths; those of a folder by their names
  std::vector<std::string> unknown;  // the paths at which there is no song
};

SongsAt songs_at(const std::vector<std::string>& paths, const media::Library& library);

}  // namespace host::media_player
