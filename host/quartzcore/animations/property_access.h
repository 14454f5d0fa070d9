#pragma once

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

/// Applies to `presented` every animation whose key path `find` knows.
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
