#pragma once

#include <filesystem>
#include <string>

#include "host/social/delivery/desktop_opener.h"

namespace host::social {

/// Where texts that leave the phone go. Set before the first composer is shown.
struct Configuration {
  Desktop desktop = Desktop::Absent;
  /// A folder of the device.
  std::string outbox = "/var/mobile/Library/Outbox";
  /// A file on the user's machine; it may be missing.
  std::filesystem::path share_target;
};

void configure(Configuration configuration);
const Configuration& configuration();

/// `sonavue/share-target` in the user's configuration folder.
std::filesystem::path default_share_target_file();

}  // namespace host::social
