#pragma once

#include <spdlog/spdlog.h>

namespace host {

/// Starts the log of this process, on standard error: `[name] level: text`.
void start_log(const char* process_name);

}  // namespace host
