#include "host/console/commands.h"

#include <algorithm>

namespace host::console {

const Command* command_named(std::string_view name) {
  for (const auto group : {touch_commands(), device_commands(), inspection_commands()}) {
    const auto found = std::find_if(group.begin(), group.end(), [name](const Command& command) {
      return command.name == name;
    });
    if (found != group.end()) return &*found;
  }
  return nullptr;
}

Result<Answer> answer_of(const Refusal& refusal) {
  if (refusal) return Answer{Answer::Kind::Error, *refusal};
  return Answer{};
}

}  // namespace host::console
