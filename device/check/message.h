#pragma once

#include <set>
#include <string>

#include "device/macho/image.h"

namespace sonavue::device {

/// A message as a binding or a replacement names it.
struct Message {
  std::string cls;
  /// With the sign before it: "-setText:".
  std::string selector;
  std::string types;

  /// "-[UILabel setText:]".
  std::string name() const;
  bool operator<(const Message& other) const { return name() < other.name(); }
};

/// Reads "-[UILabel setText:] v@:@"; the types may be missing. Throws FormatError.
Message message_in(const std::string& text);

/// What the variables of one template are for stands in their symbols: the texts after `prefix`.
std::set<std::string> texts_of_symbols(const Image& library, const std::string& prefix);

}  // namespace sonavue::device
