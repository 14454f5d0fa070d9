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

// The path as the library knows it: absolute, through no link to a folder. The name of a file
// stays, also when it is a link, since its suffix says what it is.
inline std::string settled_path(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  if (error) return path;
  const bool is_folder = fs::is_directory(absolute, error);
  const fs::path folder =
      fs::weakly_canonical(is_folder ? absolute : absolute.parent_path(), error);
  if (error) return absolute;
  return is_folder ? folder : folder / absolute.filename();
}

}  // namespace host::media
