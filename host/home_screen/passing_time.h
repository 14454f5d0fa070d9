#pragma once

#include "host/runtime/run_loop.h"

namespace host::launcher {

/// Serves the loop, whose clock moves by itself, until `seconds` have gone by.
void let_time_pass(RunLoop& loop, double seconds);

}  // namespace host::launcher
