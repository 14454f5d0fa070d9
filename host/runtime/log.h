#pragma once

#include <spdlog/spdlog.h>

namespace host {

/// The one log of a process, on standard error: `[name] level: text`.
void start_log(const char* process_name);

}  // namespace host
