#pragma once

#include <span>
#include <string_view>

#include "host/console/session.h"

namespace host::console {

/// One command: reads its own parts, checks all of them, and only then acts.
struct Command {
  std::string_view name;
  Result<Answer> (*carry_out)(Session& session, LineReader& reader);
};

/// nullptr when there is none of that name.
const Command* command_named(std::string_view name);

/// The commands of the finger: tap, touch and drag.
std::span<const Command> touch_commands();
/// Buttons, keys and events of the system.
std::span<const Command> device_commands();
/// Values, expectations and the console itself.
std::span<const Command> inspection_commands();

/// Answers `ok`, or the refusal as an error at the line's start.
Result<Answer> answer_of(const Refusal& refusal);

}  // namespace host::console
