#include "host/console/globals.h"

#include "host/console/marshal.h"

namespace host::console {

void Globals::add_table(const ExportedGlobal* table) {
  for (; table && table->name; ++table)
    by_name_.emplace(table->name, *table);
}

bool Globals::has(std::string_view name) const {
  return by_name_.contains(std::string(name));
}

std::optional<Value> Globals::value(std::string_view name) const {
  const auto found = by_name_.find(std::string(name));
  if (found == by_name_.end()) return std::nullopt;
  const auto type = parse_type(found->second.encoding);
  if (!type || type->size == 0) return std::nullopt;
  return load(*type, found->second.address);
}

}  // namespace host::console
