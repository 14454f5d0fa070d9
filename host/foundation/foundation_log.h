#pragma once

#include <string_view>

namespace host::foundation {

/// Redirects everything that Foundation prints, and extensions print through it, to the log.
/// Foundation repeats a complaint for every failed attempt, and extensions read their files many
/// times a second, so each place in its source that complains is logged only once.
void take_foundation_log();

/// Logs a line in Foundation's format: `date time process[number:number] text`.
void log_foundation_line(std::string_view line);

}  // namespace host::foundation
