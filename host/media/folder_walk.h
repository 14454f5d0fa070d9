#pragma once

#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

#include "host/media/song_record.h"

namespace host::media {

struct WalkedFile {
  std::string path;
  FileStamp stamp;
};

struct WalkedFolder {
  std::string path;
  FolderPicture picture;  // Key 0 when the folder has no picture.
  std::vector<WalkedFile> songs;
};

struct WalkVisitor {
  std::function<void(WalkedFolder&)> on_folder;
  std::function<void(const std::string& path, const std::string& reason)> on_unreadable;
  // A song or a picture that is out of reach, behind a loop of links for instance. One that is gone
  // is not reported.
  std::function<void(const std::string& path, const std::string& reason)> on_unreachable;
};

// Visits every folder below `roots` once, however many symbolic links lead to it, and reports songs
// and pictures by their names, without opening a file. Skips hidden files and folders.
void walk_folders(std::span<const std::string> roots, const WalkVisitor& visitor,
                  std::stop_token stop);

}  // namespace host::media
