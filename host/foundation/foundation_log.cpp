#include "host/foundation/foundation_log.h"

#include <string>
#include <unordered_set>

#include "host/runtime/log.h"
#include "host/runtime/text_bytes.h"
#include "platform/Foundation/NSString.h"

extern "C" void (*_NSLog_printf_handler)(objc::Id line);

namespace host::foundation {
namespace {

/// Removes Foundation's prefix: our log has its own prefix for the process.
std::string_view without_prefix(std::string_view line) {
  const auto end = line.find("] ");
  return end == line.npos ? line : line.substr(end + 2);
}

std::string_view without_line_end(std::string_view line) {
  while (line.ends_with('\n'))
    line.remove_suffix(1);
  return line;
}

/// Returns the `File NSData.m: 299.` of such a complaint; empty for any other line. The rest of the
/// line may differ each time, for example in the name of a temporary file.
std::string_view place_of_complaint(std::string_view text) {
  constexpr std::string_view kMiddle = ".m: ";
  if (!text.starts_with("File ")) return {};
  const auto middle = text.find(kMiddle);
  const auto end = middle == text.npos ? middle : text.find('.', middle + kMiddle.size());
  return end == text.npos ? std::string_view() : text.substr(0, end);
}

void take_line(objc::Id line) {
  log_foundation_line(utf8_of(objc::wrap<NSString>(line)));
}

}  // namespace

void log_foundation_line(std::string_view line) {
  static std::unordered_set<std::string> heard;
  const std::string_view text = without_line_end(without_prefix(line));
  const std::string_view place = place_of_complaint(text);
  if (place.empty()) {
    spdlog::info("{}", text);
  } else if (heard.emplace(place).second) {
    spdlog::warn("{}", text);
  }
}

void take_foundation_log() {
  _NSLog_printf_handler = &take_line;
}

}  // namespace host::foundation
