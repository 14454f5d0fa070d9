#pragma once

namespace host::springboard {

/// Makes the home screen's classes known to the runtime; UIKit's must be there. Calling it twice is
/// harmless.
void export_springboard();

/// Ends the home screen of this process, so that another can be launched: for tests.
void forget_springboard();

}  // namespace host::springboard
