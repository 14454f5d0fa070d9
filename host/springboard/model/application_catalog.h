#pragma once

#include <string>
#include <vector>

#include "platform/Foundation/NSString.h"

namespace host::springboard {

struct InstalledApplication {
  std::string bundle;        ///< Its identifier.
  std::string name;          ///< The label of its icon.
  std::string path;          ///< Its folder on the device.
  std::string program = {};  ///< The program of its process; empty when it has none.
  friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

/// Returns the applications in a folder of `<Name>.app` folders, sorted by folder name. Ignores,
/// with a log line, an application without a readable Info.plist or without an identifier, and the
/// second of two with the same identifier.
std::vector<InstalledApplication> read_applications(NSString folder);

}  // namespace host::springboard
