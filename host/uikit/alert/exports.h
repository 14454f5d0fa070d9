#pragma once

namespace host::uikit {

/// Registers alerts and their buttons. Requires the classes of views and scrolling.
void export_alert();

}  // namespace host::uikit
