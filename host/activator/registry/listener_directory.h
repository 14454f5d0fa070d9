#pragma once

#include <string>
#include <vector>

#include "host/activator/registry/listener_record.h"
#include "platform/UIKit/UIImage.h"

namespace host::activator {

inline constexpr const char* kDirectoryPath =
    "/var/mobile/Library/Caches/gesture-service/listeners.plist";

/// The registered listeners for other processes, which cannot query them: a file with the records,
/// and the icons as pictures beside it. Only the home screen writes it.
class ListenerDirectory {
 public:
  explicit ListenerDirectory(std::string device_path = kDirectoryPath)
      : path_(std::move(device_path)) {}

  /// In the order of their titles. Empty when the file does not exist; invalid entries are skipped.
  std::vector<ListenerRecord> read() const;
  /// If nothing is registered under that name, the record has only the name.
  ListenerRecord find(const std::string& name) const;
  bool write(const std::vector<ListenerRecord>& records) const;

  /// Stores the picture beside the file and returns its path; empty when that fails or the icon is
  /// nil.
  std::string keep_icon(const std::string& listener, UIImage icon) const;

 private:
  std::string path_;
};

}  // namespace host::activator
