#pragma once

#include <chrono>

namespace host {

/// The environment variable with the factor for every wait after which a process counts as hung; 0
/// means for ever, which is for debuggers.
inline constexpr const char* kPatienceVariable = "SONAVUE_PATIENCE";

/// The factor of this process: more than 1 under the sanitizers and on an emulated processor,
/// unless the environment names one.
double patience_scale();

/// The time after which something of this many seconds takes too long.
std::chrono::milliseconds patience_of(double seconds);

}  // namespace host
