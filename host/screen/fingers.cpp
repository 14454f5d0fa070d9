#include "host/screen/fingers.h"

#include <algorithm>

namespace host::screen {

std::optional<int> Fingers::number_of(std::int64_t name, TouchPhase phase) {
  auto place = std::find(names_.begin(), names_.end(), std::optional(name));
  if (place == names_.end()) {
    if (phase != TouchPhase::Began) return std::nullopt;
    place = std::find(names_.begin(), names_.end(), std::nullopt);
    if (place == names_.end()) place = names_.insert(names_.end(), std::nullopt);
    *place = name;
  } else if (phase == TouchPhase::Began) {
    return std::nullopt;
  }
  const int number = static_cast<int>(place - names_.begin()) + 1;
  if (phase == TouchPhase::Ended || phase == TouchPhase::Cancelled) place->reset();
  return number;
}

}  // namespace host::screen
