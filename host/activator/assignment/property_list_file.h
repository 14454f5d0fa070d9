#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Foundation/NSDictionary.h"

namespace host::activator {

/// Identifies a version of a file without reading it.
struct FileStamp {
  std::uint64_t file = 0;
  std::int64_t changed = 0;  // nanoseconds
  std::uint64_t size = 0;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A property list on the device that two processes use. A writer replaces the whole file
/// atomically, so a reader sees either the old version or the new one.
class PropertyListFile {
 public:
  explicit PropertyListFile(std::string device_path) : path_(std::move(device_path)) {}

  const std::string& path() const { return path_; }
  /// Empty when the file does not exist.
  std::optional<FileStamp> stamp() const;
  /// Nil when the file does not exist or is not a property list with a dictionary at its root.
  NSDictionary read() const;
  /// Creates the folder if it is missing. Returns false, and logs, when the file cannot be written.
  bool write(NSDictionary list) const;
  /// Renames a damaged file, which keeps it for inspection, and logs one line.
  void set_aside() const;

 private:
  std::string path_;
};

}  // namespace host::activator
