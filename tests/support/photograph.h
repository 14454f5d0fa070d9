#pragma once

#include <string>

namespace host::test {

/// Writes what the windows show at the clock time `now` to `name`.png in the folder that
/// SONAVUE_PHOTOGRAPHS names, for people to look at. Does nothing when it is unset.
void photograph(const std::string& name, double now);

}  // namespace host::test
