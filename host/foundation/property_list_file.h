#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "host/files/stamp.h"
#include "platform/Foundation/NSDictionary.h"

namespace host::foundation {

/// A property list with a dictionary at its root, which this process, and perhaps others, read and
/// replace as a whole. Nothing is ever lost: what is damaged is set aside, and what cannot be read
/// is not replaced.
class PropertyListFile {
 public:
  /// A path of the device or of this machine.
  explicit PropertyListFile(std::string path) : path_(std::move(path)) {}

  const std::string& path() const { return path_; }
  /// Empty when the file does not exist; of an unknown version when it cannot be looked at.
  std::optional<files::Stamp> stamp() const;
  /// Nil when the file is missing, damaged or unreadable. Whatever is no such list is set aside.
  NSDictionary read();
  /// Whether the last attempt to read it failed, so that its contents are unknown.
  bool is_unread() const { return static_cast<bool>(unread_); }
  /// Creates the folder if it is missing. Returns false when the file cannot be written, with a
  /// line in the log, or is unread.
  bool write(NSDictionary list) const;
  /// Renames the file, for a list that is not of the expected form, and logs one line.
  void set_aside() const;

 private:
  std::string path_;
  std::error_code unread_;
};

}  // namespace host::foundation
