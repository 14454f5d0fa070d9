#pragma once

#include <string>

#include "host/basics/descriptor.h"

namespace host::launcher {

/// Precede the numbers of the descriptors below.
inline constexpr const char* kBrowserArgument = "--browser-descriptor";
inline constexpr const char* kAccessArgument = "--access-descriptor";

/// Where browsers find the phone. It belongs to the supervisor, so that its address and its page
/// outlive a home screen. Closed when made by default.
struct BrowserDoor {
  Descriptor listener;
  Descriptor access;  // the memory of `browser::Access`

  /// Closed, with the reason in `problem`, when this machine has no port to listen at.
  static BrowserDoor open(std::string& problem);
  explicit operator bool() const { return static_cast<bool>(listener); }
  std::string link() const;
};

/// Tells the user where the phone is.
void say_link(const std::string& link);

}  // namespace host::launcher
