#pragma once

#include <span>
#include <string_view>

#include "host/console/session.h"

namespace host::console {

/// One command: reads its arguments, checks all of them, and only then acts.
struct Command {
  std::string_view name;
  Result<Answer> (*carry_out)(Session& session, LineReader& reader);
};

/// nullptr for an unknown name.
const Command* command_named(std::string_view name);

/// Commands for fingers and the wheel: tap, touch, drag, wheel and right-click.
std::span<const Command> touch_commands();
/// Commands for buttons, keys and system events.
std::span<const Command> device_commands();
/// Commands for values, expectations and the console itself.
std::span<const Command> inspection_commands();

/// Returns `ok`, or the refusal as an error at the start of the line.
Result<Answer> answer_of(const Refusal& refusal);

}  // namespace host::console
