#include <fmt/format.h>

#include <algorithm>

#include "host/console/commands.h"
#include "host/console/names.h"

namespace host::console {
namespace {

constexpr std::string_view kKeys[] = {
    "return", "delete", "escape", "tab",        "space",      "left",           "right",     "up",
    "down",   "home",   "end",    "media-play", "media-next", "media-previous", "media-stop"};

// With the control key, these letters edit text or make a gesture; without it they are typed.
constexpr std::string_view kControlKeys[] = {"a", "c", "f", "g", "v", "x"};

enum class Detail { None, Text, BundleIdentifier };

struct SystemName {
  std::string_view name;
  std::string_view direction;  // the second word, if any
  SystemEvent event;
  Detail detail;
};

constexpr SystemName kSystemEvents[] = {
    {"banner", "", SystemEvent::Banner, Detail::Text},
    {"notification-centre", "", SystemEvent::NotificationCentre, Detail::None},
    {"control-centre", "", SystemEvent::ControlCentre, Detail::None},
    {"reachability", "", SystemEvent::Reachability, Detail::None},
    {"lock", "", SystemEvent::Lock, Detail::None},
    {"unlock", "", SystemEvent::Unlock, Detail::None},
    {"edit", "on", SystemEvent::EditOn, Detail::None},
    {"edit", "off", SystemEvent::EditOff, Detail::None},
    {"open", "", SystemEvent::Open, Detail::BundleIdentifier},
    {"folder", "in", SystemEvent::FolderIn, Detail::BundleIdentifier},
    {"folder", "out", SystemEvent::FolderOut, Detail::BundleIdentifier},
    {"dock", "in", SystemEvent::DockIn, Detail::BundleIdentifier},
    {"dock", "out", SystemEvent::DockOut, Detail::BundleIdentifier},
    {"uninstall", "", SystemEvent::Uninstall, Detail::BundleIdentifier},
    {"kill", "", SystemEvent::Kill, Detail::BundleIdentifier},
};

Result<Answer> button(Session& session, LineReader& reader) {
  reader.at_end();
  const Problem unknown =
      reader.problem("home, home-double, home-touch, lock, volume-up or volume-down is missing");
  const auto found = value_named(kButtons, reader.word());
  if (!found) return unknown;
  std::optional<ButtonPhase> phase;
  if (reader.peek_word() == "down") phase = ButtonPhase::Down;
  if (reader.peek_word() == "up") phase = ButtonPhase::Up;
  if (phase) reader.word();
  if (const auto problem = reader.end()) return *problem;
  if (phase) return answer_of(session.phone().button(*found, *phase));
  return answer_of(session.phone().press(*found));
}

// The text is taken literally, including `#`: a search may begin with one.
Result<Answer> type(Session& session, LineReader& reader) {
  const auto text = reader.rest();
  if (text.empty()) return reader.problem("a text to type is missing");
  return answer_of(session.phone().type(text));
}

template <std::size_t Count>
bool is_one_of(const std::string_view (&names)[Count], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// Returns whether this names a key, with or without modifier keys before it.
bool is_key(std::string_view name) {
  constexpr std::string_view kControl = "control-";
  constexpr std::string_view kShift = "shift-";
  const bool control = name.starts_with(kControl);
  if (control) name.remove_prefix(kControl.size());
  if (name.starts_with(kShift)) name.remove_prefix(kShift.size());
  return is_one_of(kKeys, name) || (control && is_one_of(kControlKeys, name));
}

Result<Answer> key(Session& session, LineReader& reader) {
  reader.at_end();
  const Problem unknown =
      reader.problem(fmt::format("a key is one of {}, or one of them or of {} after control- or "
                                 "shift-",
                                 fmt::join(kKeys, ", "), fmt::join(kControlKeys, ", ")));
  const auto name = reader.word();
  if (!is_key(name)) return unknown;
  if (const auto problem = reader.end()) return *problem;
  return answer_of(session.phone().key(name));
}

/// The answer to a line that no hand can carry out, of which the phone is told.
Result<Answer> carried_out(Session& session, const LineReader& reader, const Refusal& refusal) {
  if (!refusal) session.phone().carried_out(reader.line());
  return answer_of(refusal);
}

const SystemName* read_system_name(LineReader& reader) {
  const auto name = reader.word();
  for (const SystemName& known : kSystemEvents) {
    if (known.name != name) continue;
    if (known.direction.empty()) return &known;
    if (known.direction != reader.peek_word()) continue;
    reader.word();
    return &known;
  }
  return nullptr;
}

Result<Answer> system_event(Session& session, LineReader& reader) {
  reader.at_end();
  const Problem unknown = reader.problem("a system event is missing");
  const SystemName* found = read_system_name(reader);
  if (!found) return unknown;
  std::string_view detail;
  if (found->detail == Detail::Text) {
    detail = reader.rest();
    if (detail.empty()) return reader.problem("a text is missing");
  } else {
    if (found->detail == Detail::BundleIdentifier) {
      if (reader.at_end()) return reader.problem("a bundle identifier is missing");
      detail = reader.word();
    }
    if (const auto problem = reader.end()) return *problem;
  }
  return carried_out(session, reader, session.phone().system(found->event, detail));
}

Result<Answer> gesture(Session& session, LineReader& reader) {
  if (reader.at_end()) return reader.problem("the name of an event is missing");
  const auto event = reader.word();
  if (const auto problem = reader.end()) return *problem;
  return carried_out(session, reader, session.phone().gesture(event));
}

constexpr Command kDeviceCommands[] = {
    {"button", &button},       {"type", &type},       {"key", &key},
    {"system", &system_event}, {"gesture", &gesture},
};

}  // namespace

std::span<const Command> device_commands() {
  return kDeviceCommands;
}

}  // namespace host::console
