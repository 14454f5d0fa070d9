#pragma once

#include <string>

#include "host/console/value.h"

namespace host::console {

/// Formats a value on one line: `YES`, `3.5`, `"text"`, `{{x, y}, {w, h}}`, `nil`, `<Class …>`,
/// `(…)`.
std::string text_of(const Value& value);

}  // namespace host::console
