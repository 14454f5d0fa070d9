#pragma once

#include <string>
#include <vector>

namespace host::springboard {

/// Lists, for debugging, everything that keeps the phone from being at rest on its home screen:
/// open surfaces and applications, icons out of their slots or out of reach, windows that receive
/// the home screen's touches, fingers believed to be down, and running animations.
std::vector<std::string> reasons_for_unrest();

}  // namespace host::springboard
