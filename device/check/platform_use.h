#pragma once

#include "device/check/message.h"

namespace sonavue::device {

/// What a library uses of the platform, from its symbols and strings.
struct PlatformUse {
  /// Classes that it looks up by name.
  std::set<std::string> classes;
  /// Messages that bindings send, and methods that the library replaces.
  std::set<Message> messages;
  /// The names of the messages that the library checks for before it sends them.
  std::set<std::string> asked;
  /// Selectors whose class is unknown: "setText:". Methods that the library implements for other
  /// code to call are included only if they take an argument; a selector without one looks like any
  /// other word.
  std::set<std::string> selectors;
  /// The bridge's caches for which the library has no symbols.
  std::vector<std::string> silent;
  /// All its strings, zero-terminated.
  std::string texts;
  /// The libraries that it is linked to.
  std::set<std::string> linked;

  bool has_text(const std::string& text) const;
};

PlatformUse platform_use(const Image& library);

}  // namespace sonavue::device
