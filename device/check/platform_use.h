#pragma once

#include "device/check/message.h"

namespace sonavue::device {

/// What a library uses of the platform, read from its symbols and texts.
struct PlatformUse {
  /// Classes that are looked up by name.
  std::set<std::string> classes;
  /// Messages that are sent by a binding, and methods that one of the library's takes the place of.
  std::set<Message> messages;
  /// The names of the messages that the library asks for before it sends them.
  std::set<std::string> asked;
  /// Selectors of which nothing tells the class: "setText:". What is implemented for others to call
  /// is among them, when it has an argument; any other looks like a word.
  std::set<std::string> selectors;
  /// The caches of the bridge of which no symbol is there to tell anything.
  std::vector<std::string> silent;
  /// All its texts, ended by zeros.
  std::string texts;
  /// The libraries that it is linked to.
  std::set<std::string> linked;

  bool has_text(const std::string& text) const;
};

PlatformUse platform_use(const Image& library);

}  // namespace sonavue::device
