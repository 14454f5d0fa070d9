#pragma once

namespace sonavue {

/// Replaces the home screen's `applicationDidFinishLaunching:`, from which all else starts.
void hook_launch();

}  // namespace sonavue
