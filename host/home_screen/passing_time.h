#pragma once

#include "host/runtime/run_loop.h"

namespace host::launcher {

/// Runs the loop, whose clock must be a real one, until `seconds` have passed.
void let_time_pass(RunLoop& loop, double seconds);

}  // namespace host::launcher
