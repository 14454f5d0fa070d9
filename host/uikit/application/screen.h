#pragma once

namespace host::uikit {

/// The main screen, as large as the device model's.
void export_screen();

}  // namespace host::uikit
