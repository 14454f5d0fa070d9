#pragma once

namespace host::uikit {

/// Registers page view controllers. Requires the classes of views and scrolling.
void export_pages();

}  // namespace host::uikit
