#pragma once

namespace host::uikit {

/// Registers pickers and their wheels. Requires the classes of views and scrolling.
void export_picker();

}  // namespace host::uikit
