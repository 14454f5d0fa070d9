#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host::media {

// What a library reads a file for, in the order in which files are tried: an entry that names a
// song may read a cover on the way.
enum class Reading : std::uint32_t { cover, song, sound };

// Reads a file as the phone does, in a process that may end by it.
using ReadingTrial = void (*)(Reading, const std::string& path);

// Keeps the marks of this process in `file` from now on; an empty name keeps none. A mark that is
// found there names a file that an earlier process was reading when it ended. It is tried in a
// process of its own, since a phone also ends for other reasons; if that ends, too, the file is
// left out until it changes, with one line. Call it at start, before another thread reads.
void keep_reading_marks(const std::string& file, ReadingTrial trial);

// Marks a file while a library reads it. The mark survives the end of the process, but not of the
// machine. For any thread.
class ReadingMark {
 public:
  ReadingMark(Reading reading, const std::string& path);
  ~ReadingMark();
  ReadingMark(const ReadingMark&) = delete;
  ReadingMark& operator=(const ReadingMark&) = delete;

  // False for a file that has ended a process, as long as it stays as it was.
  bool may_read() const { return may_read_; }

 private:
  std::optional<std::uint32_t> place_;
  bool may_read_ = true;
};

}  // namespace host::media
