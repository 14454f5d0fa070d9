#include "host/runtime/log.h"

#include <spdlog/sinks/stdout_sinks.h>

namespace host {

void start_log(const char* process_name) {
  auto log = spdlog::stderr_logger_mt(process_name);
  log->set_pattern("[%n] %l: %v");
  spdlog::set_default_logger(std::move(log));
}

}  // namespace host
