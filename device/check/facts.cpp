#include "device/check/facts.h"

#include <algorithm>
#include <optional>

namespace sonavue::device {
namespace {

using System = std::optional<std::size_t>;

bool is_covered_on(const ClassFact& cls, std::size_t system) {
  return cls.presences[system] != Presence::kUnknown;
}

System covered_before(const ClassFact& cls, std::size_t system) {
  while (system-- > 0)
    if (is_covered_on(cls, system)) return system;
  return std::nullopt;
}

System covered_after(const ClassFact& cls, std::size_t system) {
  while (++system < cls.presences.size())
    if (is_covered_on(cls, system)) return system;
  return std::nullopt;
}

}  // namespace

bool ClassFact::is_covered() const {
  return std::count(presences.begin(), presences.end(), Presence::kYes) != 0;
}

const ClassFact* Facts::class_named(const std::string& name) const {
  const auto found = classes.find(name);
  return found == classes.end() ? nullptr : &found->second;
}

bool Facts::is_in_program(const std::string& image) const {
  return std::count(program_images.begin(), program_images.end(), image) != 0;
}

Presence presence_on(std::size_t system, const Presences& row, const ClassFact& cls) {
  if (is_covered_on(cls, system)) return row[system];
  const System before = covered_before(cls, system);
  const System after = covered_after(cls, system);
  if (!after) return Presence::kUnknown;
  return !before || row[*before] == row[*after] ? row[*after] : Presence::kUnknown;
}

}  // namespace sonavue::device
