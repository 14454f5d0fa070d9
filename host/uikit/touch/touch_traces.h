#pragma once

#include <string>
#include <vector>

namespace host::uikit {

/// Returns a description of everything that believes a finger to be on the screen: touches that
/// have not ended, recognisers under way, and held controls, icons and scroll views. Empty while no
/// finger is down.
std::vector<std::string> touch_traces();

}  // namespace host::uikit
