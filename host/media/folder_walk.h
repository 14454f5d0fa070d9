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
  FolderPicture picture;  // Key 0 when no picture lies here.
  std::vector<WalkedFile> songs;
};

struct WalkVisitor {
  std::function<void(WalkedFolder&)> on_folder;
  std::function<void(const std::string& path, const std::string& reason)> on_unreadable;
};

// Visits every folder below `roots` once, however many symbolic links lead to it, and looks at the
// names of songs and pictures only. Hidden files and folders are left out. Opens no file.
void walk_folders(std::span<const std::string> roots, const WalkVisitor& visitor,
                  std::stop_token stop);

}  // namespace host::media
