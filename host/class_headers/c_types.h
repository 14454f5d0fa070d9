#pragma once

#include <set>
#include <string>

#include "host/console/type_encoding.h"

namespace host::class_headers {

/// The definitions of the structures that were named, by name. A structure comes after those that
/// are in it.
class Structures {
 public:
  /// Adds the structure unless it is there, and returns its name.
  std::string name_of(const console::Type& structure);
  const std::string& definitions() const { return text_; }

 private:
  std::set<std::string> known_;
  std::string text_;
};

/// How C writes the type.
std::string c_type(const console::Type& type, Structures& structures);

}  // namespace host::class_headers
