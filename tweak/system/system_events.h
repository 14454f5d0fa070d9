#pragma once

namespace sonavue {

/// Replaces the sixteen methods of the system through which its events close or feed the panel.
void hook_system_events();

}  // namespace sonavue
