#pragma once

#include <cstdint>
#include <string>

#include "host/media/song_tags.h"

namespace host::media {

// How a file looked when it was last read. The same stamp means that nothing has to be read again.
struct FileStamp {
  std::int64_t size = 0;
  std::int64_t modified_ns = 0;

  auto operator<=>(const FileStamp&) const = default;
};

// The picture that lies beside the songs of a folder. The key changes with the file.
struct FolderPicture {
  std::string path;
  std::uint64_t key = 0;
  PictureHeader header;  // Not known to a walk, which opens no file.

  bool operator==(const FolderPicture& other) const {
    return path == other.path && key == other.key;
  }
};

// One song as the index keeps it.
struct SongRecord {
  std::uint64_t id = 0;
  std::string path;
  FileStamp stamp;
  FolderPicture folder_picture;
  SongTags tags;
};

// A file that was opened and holds no song, remembered so that it is not opened again.
struct RefusedFile {
  std::string path;
  FileStamp stamp;
};

}  // namespace host::media
