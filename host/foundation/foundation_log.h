#pragma once

#include <string_view>

namespace host::foundation {

/// From now on what Foundation prints, and what extensions print through it, goes to the one log.
/// Foundation complains anew each time that something is tried in vain, and extensions read their
/// files many times a second: each place of its source that complains is heard once.
void take_foundation_log();

/// A line as Foundation makes it: `date time process[number:number] text`.
void log_foundation_line(std::string_view line);

}  // namespace host::foundation
