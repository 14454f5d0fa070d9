#pragma once

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

#include "host/screen/input.h"

namespace host::console {

// The names of input in the console's language.

template <class T>
struct Named {
  std::string_view name;
  T value;
};

inline constexpr Named<screen::TouchPhase> kPhases[] = {
    {"began", screen::TouchPhase::Began},
    {"moved", screen::TouchPhase::Moved},
    {"ended", screen::TouchPhase::Ended},
    {"cancelled", screen::TouchPhase::Cancelled},
};

inline constexpr Named<screen::Button> kButtons[] = {
    {"home", screen::Button::Home},
    {"home-double", screen::Button::HomeDouble},
    {"home-touch", screen::Button::HomeTouch},
    {"lock", screen::Button::Lock},
    {"volume-up", screen::Button::VolumeUp},
    {"volume-down", screen::Button::VolumeDown},
};

template <class T, std::size_t Count>
std::optional<T> value_named(const Named<T> (&names)[Count], std::string_view name) {
  const auto* found = std::find_if(std::begin(names), std::end(names),
                                   [name](const Named<T>& known) { return known.name == name; });
  if (found == std::end(names)) return std::nullopt;
  return found->value;
}

template <class T, std::size_t Count>
std::string_view name_of(const Named<T> (&names)[Count], T value) {
  const auto* found = std::find_if(std::begin(names), std::end(names),
                                   [value](const Named<T>& known) { return known.value == value; });
  return found == std::end(names) ? std::string_view() : found->name;
}

}  // namespace host::console
