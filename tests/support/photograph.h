#pragma once

#include <string>

namespace host::test {

/// Writes what the windows show at the clock time `now` to `name`.png in the folder that
/// SONAVUE_PHOTOGRAPHS names, so that people can look at what a test sees. Does nothing without it.
void photograph(const std::string& name, double now);

}  // namespace host::test
