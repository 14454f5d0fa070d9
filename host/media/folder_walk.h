#pragma once

#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
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
  // Optional: before a folder is read, and for a path that is no folder below the roots but whose
  // changes change the walk: a root that is a song or missing, or a link to a folder.
  std::function<void(const std::string& path)> on_enter = {};
  std::function<void(const std::string& path)> on_name = {};
  // Optional: sound of a kind that is not played, with its suffix in small letters.
  std::function<void(const std::string& suffix)> on_left_out = {};
};

// Whether a file of this name takes part in a walk.
bool is_walked_name(std::string_view name);

std::string joined_path(const std::string& folder, std::string_view name);

// Visits every folder below `roots` once, however many symbolic links lead to it, and reports songs
// and pictures by their names, without opening a file. Skips hidden files and folders. A root may
// also be a song: of its folder, only that song and the picture are reported.
void walk_folders(std::span<const std::string> roots, const WalkVisitor& visitor,
                  std::stop_token stop);

}  // namespace host::media
