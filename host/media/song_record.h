#pragma once

#include <cstdint>
#include <string>

#include "host/media/file_stamp.h"
#include "host/media/song_tags.h"

namespace host::media {

// The picture beside the songs of a folder. The key changes with the file.
struct FolderPicture {
  std::string path;
  std::uint64_t key = 0;
  PictureHeader header;  // Not set by a walk, which opens no file.

  bool operator==(const FolderPicture& other) const {
    return path == other.path && key == other.key;
  }
};

// One song as the index stores it.
struct SongRecord {
  std::uint64_t id = 0;
  std::string path;
  FileStamp stamp;
  FolderPicture folder_picture;
  SongTags tags;
};

// A file that turned out to contain no song, remembered in order not to open it again.
struct RefusedFile {
  std::string path;
  FileStamp stamp;
};

}  // namespace host::media
