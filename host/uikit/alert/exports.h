#pragma once

namespace host::uikit {

/// Makes alerts and their buttons; the classes of views and scrolling come first.
void export_alert();

}  // namespace host::uikit
