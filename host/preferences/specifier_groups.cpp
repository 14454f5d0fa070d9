#include "host/preferences/specifier_groups.h"

#include "host/preferences/cell_types.h"
#include "host/preferences/specifier.h"

namespace host::preferences {

SpecifierGroups::SpecifierGroups(NSArray specifiers) {
  if (!specifiers) return;
  for (const PSSpecifier specifier : specifiers.of<PSSpecifier>()) {
    auto kept = objc::Ref<PSSpecifier>::retain(specifier);
    if (state_of(specifier).cell_type() == kGroupCell) {
      groups_.push_back({std::move(kept), {}});
      continue;
    }
    if (groups_.empty()) groups_.emplace_back();
    groups_.back().rows.push_back(std::move(kept));
  }
}

std::optional<SpecifierGroups::Place> SpecifierGroups::find(PSSpecifier specifier) const {
  for (std::size_t group = 0; group < count(); ++group)
    for (std::size_t place = 0; place < rows_in(group); ++place)
      if (row(group, place) == specifier) return Place{group, place};
  return std::nullopt;
}

}  // namespace host::preferences
