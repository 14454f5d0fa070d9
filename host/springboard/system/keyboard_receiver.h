#pragma once

#include "host/springboard/processes/running_processes.h"

namespace host::springboard {

/// The application that receives the physical keyboard's keys; null when the home screen does.
RunningProcesses::Process keyboard_receiver();

}  // namespace host::springboard
