#pragma once

#include <string>
#include <vector>

#include "host/activator/registry/listener_record.h"
#include "platform/UIKit/UIImage.h"

namespace host::activator {

inline constexpr const char* kDirectoryPath =
    "/var/mobile/Library/Caches/gesture-service/listeners.plist";

/// The registered listeners as other processes see them, which have nobody to ask: a file with the
/// records, and the icons as pictures beside it. The home screen writes it, everybody reads it.
class ListenerDirectory {
 public:
  explicit ListenerDirectory(std::string device_path = kDirectoryPath)
      : path_(std::move(device_path)) {}

  /// In the order of their titles. Empty when there is no such file; entries that are no records
  /// are passed over.
  std::vector<ListenerRecord> read() const;
  /// Without the modes, title and so on when nothing of that name is registered.
  ListenerRecord find(const std::string& name) const;
  bool write(const std::vector<ListenerRecord>& records) const;

  /// Keeps the picture beside the file and gives its path; empty when that failed or there is none.
  std::string keep_icon(const std::string& listener, UIImage icon) const;

 private:
  std::string path_;
};

}  // namespace host::activator
