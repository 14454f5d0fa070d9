#include "host/runtime/log.h"

#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/stdout_sinks.h>

#include "host/runtime/log_line.h"
#include "host/runtime/progress_line.h"

namespace host {
namespace {

class MessageOnOneLine final : public spdlog::custom_flag_formatter {
 public:
  void format(const spdlog::details::log_msg& message, const std::tm&,
              spdlog::memory_buf_t& line) override {
    const std::string text = on_one_line({message.payload.data(), message.payload.size()});
    line.append(text.data(), text.data() + text.size());
  }
  std::unique_ptr<custom_flag_formatter> clone() const override {
    return std::make_unique<MessageOnOneLine>();
  }
};

class ProgressLineRemoval final : public spdlog::custom_flag_formatter {
 public:
  void format(const spdlog::details::log_msg&, const std::tm&,
              spdlog::memory_buf_t& line) override {
    const std::string_view text = progress_line_removal();
    line.append(text.data(), text.data() + text.size());
  }
  std::unique_ptr<custom_flag_formatter> clone() const override {
    return std::make_unique<ProgressLineRemoval>();
  }
};

}  // namespace

void start_log(const char* process_name) {
  auto log = spdlog::stderr_logger_mt(process_name);
  auto formatter = std::make_unique<spdlog::pattern_formatter>();
  formatter->add_flag<MessageOnOneLine>('v').add_flag<ProgressLineRemoval>('*');
  formatter->set_pattern("%*[%n] %l: %v");
  log->set_formatter(std::move(formatter));
  spdlog::set_default_logger(std::move(log));
}

}  // namespace host
