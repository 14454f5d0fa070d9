#pragma once

#include <functional>

namespace host::media {

// Does `work` in a copy of this process, and returns whether the copy survives it. One that needs
// longer than a few seconds counts as surviving when it waits, for a slow disk perhaps, and as dead
// when it computes all the time.
bool process_survives(const std::function<void()>& work);

}  // namespace host::media
