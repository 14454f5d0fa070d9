#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/basics/descriptor.h"
#include "host/media/file_stamp.h"

namespace host::media {

enum class MarkState : std::uint32_t { empty, reading, left_out };

struct FileMark {
  std::uint32_t place = 0;
  MarkState state = MarkState::empty;
  std::uint32_t reading = 0;
  std::uint32_t deaths = 0;  // Of earlier processes, one after the other, while they read the file.
  FileStamp stamp;
  std::string path;
};

// A file with a fixed number of places for marks, of which each is written in place with one call
// and without waiting for the disk. Only one process has the file at a time; without it, and on a
// full disk, no mark is kept and everything else works.
class MarkFile {
 public:
  static constexpr std::uint32_t places = 32;

  MarkFile() = default;
  explicit MarkFile(const std::string& path);

  // The places that are in use. After a restart of the machine only files that are left out count:
  // what else is there may be older than the last mark.
  std::vector<FileMark> marks() const;
  // A path that is too long for a place is not written.
  void write(const FileMark& mark) const;
  void clear(std::uint32_t place) const;
  // Ends writing, in this process only.
  void close() { file_.reset(); }

 private:
  Descriptor file_;
};

}  // namespace host::media
