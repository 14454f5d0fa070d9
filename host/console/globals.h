#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/console/value.h"

namespace host::console {

/// One variable that a loaded library exposes to the console. A library exports an array of these
/// under the C name `exported_globals`, terminated by an entry without a name.
struct ExportedGlobal {
  const char* name;
  const char* encoding;
  void* address;
};

/// The exported variables of all libraries, by name. They are read in place at each use.
class Globals {
 public:
  static constexpr const char* kTableSymbol = "exported_globals";

  /// Adds a library's table; a name that exists already keeps its first meaning.
  void add_table(const ExportedGlobal* table);

  bool has(std::string_view name) const;
  /// The current value of an existing variable; empty when its type cannot be read.
  std::optional<Value> value(std::string_view name) const;

 private:
  std::unordered_map<std::string, ExportedGlobal> by_name_;
};

}  // namespace host::console
