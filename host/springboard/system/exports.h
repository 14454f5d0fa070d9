#pragma once

namespace host::springboard {

/// Registers the home screen's classes with the runtime, after UIKit's. Idempotent.
void export_springboard();

/// Ends this process's home screen, to let tests launch another.
void forget_springboard();

}  // namespace host::springboard
