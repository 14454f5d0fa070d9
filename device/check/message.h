#pragma once

#include <set>
#include <string>

#include "device/macho/image.h"

namespace sonavue::device {

/// A message as named by a binding or a replacement.
struct Message {
  std::string cls;
  /// With its sign: "-setText:".
  std::string selector;
  std::string types;

  /// "-[UILabel setText:]".
  std::string name() const;
  bool operator<(const Message& other) const { return name() < other.name(); }
};

/// Parses "-[UILabel setText:] v@:@". The types may be missing. Throws FormatError if it is
/// invalid.
Message message_in(const std::string& text);

/// The string template arguments of the library's symbols that start with `prefix`, the mangled
/// name of a variable template.
std::set<std::string> texts_of_symbols(const Image& library, const std::string& prefix);

}  // namespace sonavue::device
