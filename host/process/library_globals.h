#pragma once

#include "host/console/globals.h"

namespace host::process {

/// The globals that the libraries loaded into this process export for the console.
console::Globals globals_of_libraries();

}  // namespace host::process
