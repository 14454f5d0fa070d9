#pragma once

#include <optional>
#include <string>

#include "host/activator/assignment/assignments.h"
#include "host/foundation/property_list_file.h"

namespace host::activator {

inline constexpr const char* kAssignmentsPath =
    "/var/mobile/Library/Preferences/gesture-assignments.plist";

/// The assignments in their file. Another process may change it at any time: each lookup checks
/// whether the file has changed, and each change is applied to the file's current contents.
class AssignmentStore {
 public:
  explicit AssignmentStore(std::string device_path = kAssignmentsPath)
      : file_(std::move(device_path)) {}

  /// A damaged file is set aside and counts as empty. So does one that cannot be read, until it
  /// can.
  const Assignments& current();
  /// Return false, with nothing changed, when the file cannot be read or written.
  bool assign(const std::string& event, const std::string& mode, const std::string& listener);
  bool unassign(const std::string& event, const std::string& mode, const std::string& listener);

 private:
  bool keep(Assignments changed);

  foundation::PropertyListFile file_;
  Assignments read_;
  std::optional<files::Stamp> stamp_;
};

}  // namespace host::activator
