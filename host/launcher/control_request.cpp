#include "host/launcher/control_request.h"

#include <algorithm>

namespace host::launcher {
namespace {

using Kind = ControlRequest::Kind;

constexpr std::size_t kLongestName = 64;

/// The words of each kind's line: its verb, then its names.
struct Form {
  Kind kind;
  std::string_view verb;
  bool has_bundle;
  bool has_program;
};

constexpr Form kForms[] = {
    {Kind::Open, "open", true, true},   {Kind::Close, "close", true, false},
    {Kind::Kill, "kill", false, true},  {Kind::Find, "find", false, true},
    {Kind::Show, "show", false, false}, {Kind::Play, "play", false, false},
};

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
  rest.remove_prefix(end);
  return word;
}

/// Takes a space and a plain name.
bool take_name(std::string_view& rest, std::string& name) {
  if (rest.empty()) return false;
  rest.remove_prefix(1);
  name = take_word(rest);
  return is_plain(name);
}

}  // namespace

std::string line_of(const ControlRequest& request) {
  const auto& form = *std::find_if(std::begin(kForms), std::end(kForms),
                                   [&](const Form& one) { return one.kind == request.kind; });
  std::string line(form.verb);
  if (form.has_bundle) line += " " + request.bundle;
  if (form.has_program) line += " " + request.program;
  return line + "\n";
}

std::optional<ControlRequest> read_request(std::string_view line) {
  if (!line.ends_with('\n')) return std::nullopt;
  line.remove_suffix(1);
  const std::string_view verb = take_word(line);
  const auto* form = std::find_if(std::begin(kForms), std::end(kForms),
                                  [verb](const Form& one) { return one.verb == verb; });
  if (form == std::end(kForms)) return std::nullopt;
  ControlRequest made{form->kind, {}, {}};
  if (form->has_bundle && !take_name(line, made.bundle)) return std::nullopt;
  if (form->has_program && !take_name(line, made.program)) return std::nullopt;
  if (!line.empty()) return std::nullopt;
  return made;
}

}  // namespace host::launcher
