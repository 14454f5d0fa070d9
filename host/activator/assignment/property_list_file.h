#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Foundation/NSDictionary.h"

namespace host::activator {

/// Tells one content of a file from the next without reading it.
struct FileStamp {
  std::uint64_t file = 0;
  std::int64_t changed = 0;  // nanoseconds
  std::uint64_t size = 0;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A property list of the device that two processes use: whoever changes it puts a whole new file
/// in the place of the old one, so that a reader sees one or the other.
class PropertyListFile {
 public:
  explicit PropertyListFile(std::string device_path) : path_(std::move(device_path)) {}

  const std::string& path() const { return path_; }
  /// Nothing when there is no file.
  std::optional<FileStamp> stamp() const;
  /// Nil for what is no property list with a dictionary at its top, or is no file at all.
  NSDictionary read() const;
  /// Makes the folder where it is missing; false, and logged, when it cannot be written.
  bool write(NSDictionary list) const;
  /// Puts a file that cannot be understood out of the way, where it can still be looked at, with
  /// one line of the log.
  void set_aside() const;

 private:
  std::string path_;
};

}  // namespace host::activator
