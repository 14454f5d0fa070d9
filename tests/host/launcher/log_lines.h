#pragma once

#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <sstream>
#include <string>

/// While an instance lives, it collects this process's log.
class LogLines {
 public:
  LogLines() : before_(spdlog::default_logger()) {
    auto log = std::make_shared<spdlog::logger>(
        "test", std::make_shared<spdlog::sinks::ostream_sink_mt>(lines_));
    log->set_pattern("%l: %v");
    spdlog::set_default_logger(std::move(log));
  }
  ~LogLines() { spdlog::set_default_logger(before_); }
  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  std::string text() const { return lines_.str(); }

 private:
  std::ostringstream lines_;
  std::shared_ptr<spdlog::logger> before_;
};
