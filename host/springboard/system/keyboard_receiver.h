#pragma once

#include "host/springboard/processes/running_processes.h"

namespace host::springboard {

/// The application that receives the physical keyboard's keys; null when the home screen does.
RunningProcesses::Process keyboard_receiver();

/// The keys go elsewhere now.
void end_focus_in_application();

}  // namespace host::springboard
