#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace host::activator {

/// What the phone shows when an event happens.
enum class Mode { SpringBoard, LockScreen, Application };

struct ModeKind {
  Mode mode;
  const char* name;
  const char* title;
};

std::span<const ModeKind> mode_kinds();
const char* name_of(Mode mode);
std::optional<Mode> mode_named(std::string_view name);

/// Knows what the phone shows.
class ModeProvider {
 public:
  virtual ~ModeProvider() = default;
  virtual Mode present_mode() const = 0;
};

}  // namespace host::activator
