#pragma once

namespace host::launcher {

/// Tells the user, on the screen and in the log, that this phone has started without extensions,
/// and offers a restart with them. Requires a launched home screen.
void show_safe_mode_notice();

}  // namespace host::launcher
