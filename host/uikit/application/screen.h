#pragma once

namespace host::uikit {

/// Exports the screen class; the main screen is as large as the device model's.
void export_screen();

}  // namespace host::uikit
