#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <vector>

#include "host/quartzcore/animations/running_animation.h"
#include "host/quartzcore/values/value.h"

namespace host::quartzcore {

/// Reads and writes one property by its key path.
template <class Properties>
struct PropertyAccess {
  std::string_view key_path;
  Value (*read)(const Properties&);
  void (*write)(Properties&, const Value&);
};

template <auto Member>
struct MemberAccess;
template <class Properties, class T, T Properties::*Member>
struct MemberAccess<Member> {
  static Value read(const Properties& properties) { return properties.*Member; }
  static void write(Properties& properties, const Value& value) {
    if (const T* held = std::get_if<T>(&value)) properties.*Member = *held;
  }
  static constexpr PropertyAccess<Properties> under(std::string_view key_path) {
    return {key_path, &read, &write};
  }
};

/// Returns the access to a member under its key path.
template <auto Member>
constexpr auto access_to(std::string_view key_path) {
  return MemberAccess<Member>::under(key_path);
}

/// Returns null when none of them has the key path.
template <class Properties, std::size_t Count>
const PropertyAccess<Properties>* find_access(const PropertyAccess<Properties> (&all)[Count],
                                              std::string_view key_path) {
  const auto* found = std::find_if(std::begin(all), std::end(all),
                                   [&](const auto& one) { return one.key_path == key_path; });
  return found == std::end(all) ? nullptr : found;
}

/// Applies every animation whose key path `find` knows to `presented`.
template <class Properties, class Find>
void apply_animations(const std::vector<RunningAnimation>& animations, double now, Find find,
                      Properties& presented) {
  for (const RunningAnimation& animation : animations) {
    const auto* access = find(animation.key_path);
    if (!access) continue;
    access->write(presented, animation.evaluate(now, access->read(presented)));
  }
}

}  // namespace host::quartzcore
