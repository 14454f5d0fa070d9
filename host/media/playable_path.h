#pragma once

#include <filesystem>
#include <string>

#include "host/media/song_name.h"

namespace host::media {

// Why a path that a user names cannot be played; empty for a folder, and for a file that has the
// name of a song.
inline std::string reason_not_to_play(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    const bool is_address = path.find("://") != std::string::npos;
    return is_address ? "is an address; only files can be played" : "cannot be found";
  }
  if (error) return "cannot be reached: " + error.message();
  if (std::filesystem::is_directory(status)) return {};
  if (!std::filesystem::is_regular_file(status)) return "is not a file";
  if (!is_song_name(std::filesystem::path{path}.filename().native()))
    return "is not music of a kind that can be played";
  return {};
}

}  // namespace host::media
