#pragma once

#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace host::test {

/// Keeps what is logged while it exists, instead of printing it.
class CaughtLog {
 public:
  CaughtLog() : before_(spdlog::default_logger()) {
    auto log = std::make_shared<spdlog::logger>(
        "test", std::make_shared<spdlog::sinks::ostream_sink_mt>(lines_));
    log->set_pattern("%l: %v");
    spdlog::set_default_logger(std::move(log));
  }
  ~CaughtLog() { spdlog::set_default_logger(before_); }
  CaughtLog(const CaughtLog&) = delete;
  CaughtLog& operator=(const CaughtLog&) = delete;

  /// The lines since the last `take`, each as `level: text`.
  std::string text() const { return lines_.str(); }
  std::string take() {
    std::string taken = text();
    lines_.str({});
    return taken;
  }

 private:
  std::ostringstream lines_;
  std::shared_ptr<spdlog::logger> before_;
};

}  // namespace host::test
