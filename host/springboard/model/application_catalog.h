#pragma once

#include <string>
#include <vector>

#include "platform/Foundation/NSString.h"

namespace host::springboard {

struct InstalledApplication {
  std::string bundle;        ///< Its identifier.
  std::string name;          ///< Under its icon.
  std::string path;          ///< Its folder on the device.
  std::string program = {};  ///< Of its process; empty when it has none.
  friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

/// The applications in a folder of `<Name>.app` folders, by name of the folder. One without a
/// readable Info.plist or without an identifier is left out and logged, and so is the second of two
/// with one identifier.
std::vector<InstalledApplication> read_applications(NSString folder);

}  // namespace host::springboard
