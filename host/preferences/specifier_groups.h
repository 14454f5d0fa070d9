#pragma once

#include <optional>
#include <vector>

#include "objc/ref.h"
#include "platform/Preferences/PSSpecifier.h"

namespace host::preferences {

/// Converts a flat list of specifiers, in which a group precedes its rows, into sections and rows.
class SpecifierGroups {
 public:
  struct Place {
    std::size_t group = 0;
    std::size_t row = 0;
  };

  SpecifierGroups() = default;
  explicit SpecifierGroups(NSArray specifiers);

  std::size_t count() const { return groups_.size(); }
  std::size_t rows_in(std::size_t group) const { return groups_[group].rows.size(); }
  /// Nil for rows that precede the first group.
  PSSpecifier group(std::size_t index) const { return groups_[index].head.get(); }
  PSSpecifier row(std::size_t group, std::size_t row) const {
    return groups_[group].rows[row].get();
  }
  std::optional<Place> find(PSSpecifier specifier) const;

 private:
  struct Group {
    objc::Ref<PSSpecifier> head;
    std::vector<objc::Ref<PSSpecifier>> rows;
  };

  std::vector<Group> groups_;
};

}  // namespace host::preferences
