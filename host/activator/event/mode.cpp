#include "host/activator/event/mode.h"

namespace host::activator {
namespace {

constexpr ModeKind kModes[] = {
    {Mode::SpringBoard, "springboard", "At Home Screen"},
    {Mode::LockScreen, "lockscreen", "At Lock Screen"},
    {Mode::Application, "application", "In Application"},
};

}  // namespace

std::span<const ModeKind> mode_kinds() {
  return kModes;
}

const char* name_of(Mode mode) {
  for (const ModeKind& kind : kModes) {
    if (kind.mode == mode) return kind.name;
  }
  return "";
}

std::optional<Mode> mode_named(std::string_view name) {
  for (const ModeKind& kind : kModes) {
    if (name == kind.name) return kind.mode;
  }
  return std::nullopt;
}

}  // namespace host::activator
