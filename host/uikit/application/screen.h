#pragma once

namespace host::uikit {

/// Registers the screen class. The main screen is as large as the device model's.
void export_screen();

}  // namespace host::uikit
