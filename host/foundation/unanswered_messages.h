#pragma once

namespace host::foundation {

/// From now on a message of a loaded library that nothing answers is one line in the log, before
/// Foundation raises its exception. A message from code that runs before the runtime knows its
/// selectors is one line, too, and does nothing. Idempotent.
void report_unanswered_messages();

}  // namespace host::foundation
