#include "host/runtime/progress_line.h"

#include <unistd.h>

#include <atomic>
#include <string>

#include "host/runtime/log_line.h"

namespace host {
namespace {

constexpr std::string_view kToStartOfEmptyLine = "\r\x1b[K";

std::atomic<bool> is_shown = false;

void write_whole(std::string_view text) {
  static_cast<void>(!write(STDERR_FILENO, text.data(), text.size()));
}

}  // namespace

bool has_progress_line() {
  return isatty(STDERR_FILENO) == 1;
}

void show_progress_line(std::string_view text) {
  is_shown = true;
  write_whole(std::string(kToStartOfEmptyLine) + on_one_line(text));
}

void end_progress_line() {
  write_whole(progress_line_removal());
}

std::string_view progress_line_removal() {
  return is_shown.exchange(false) ? kToStartOfEmptyLine : std::string_view();
}

}  // namespace host
