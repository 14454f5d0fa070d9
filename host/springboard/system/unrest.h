#pragma once

#include <string>
#include <vector>

namespace host::springboard {

/// What keeps the phone from resting on its home screen, in words for whoever looks for a fault:
/// surfaces and applications that are open, icons out of their slots or out of reach, windows that
/// take the home screen's touches, fingers that are believed to be down, and whatever moves.
std::vector<std::string> reasons_for_unrest();

}  // namespace host::springboard
