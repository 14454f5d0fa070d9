#pragma once

#include <string>
#include <vector>

namespace host::uikit {

/// What believes that a finger is on the screen: touches that have not ended, recognisers under
/// way, and controls, icons and scroll views that are held. Empty while no finger is there.
std::vector<std::string> touch_traces();

}  // namespace host::uikit
