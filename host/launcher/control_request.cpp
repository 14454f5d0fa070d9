#include "host/launcher/control_request.h"

#include <algorithm>

namespace host::launcher {
namespace {

constexpr std::string_view kRestart = "restart SpringBoard";
constexpr std::string_view kOpen = "open";
constexpr std::string_view kClose = "close";
constexpr std::size_t kLongestName = 64;

bool is_plain(std::string_view name) {
  const auto is_allowed = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '-' || c == '_';
  };
  return !name.empty() && name.size() <= kLongestName && name.front() != '.' &&
         std::all_of(name.begin(), name.end(), is_allowed);
}

std::string_view take_word(std::string_view& rest) {
  const auto end = std::min(rest.find(' '), rest.size());
  const std::string_view word = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return word;
}

}  // namespace

std::string line_of(const ControlRequest& request) {
  switch (request.kind) {
    case ControlRequest::Kind::Open:
      return std::string(kOpen) + " " + request.bundle + " " + request.program + "\n";
    case ControlRequest::Kind::Close:
      return std::string(kClose) + " " + request.bundle + "\n";
    case ControlRequest::Kind::Restart:
      break;
  }
  return std::string(kRestart) + "\n";
}

std::optional<ControlRequest> read_request(std::string_view line) {
  if (!line.ends_with('\n')) return std::nullopt;
  line.remove_suffix(1);
  if (line == kRestart) return ControlRequest{};
  const std::string_view verb = take_word(line);
  const std::string bundle(take_word(line));
  const std::string program(take_word(line));
  if (!line.empty() || !is_plain(bundle)) return std::nullopt;
  if (verb == kOpen && is_plain(program))
    return ControlRequest{ControlRequest::Kind::Open, bundle, program};
  if (verb == kClose && program.empty())
    return ControlRequest{ControlRequest::Kind::Close, bundle, {}};
  return std::nullopt;
}

}  // namespace host::launcher
