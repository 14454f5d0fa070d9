#pragma once

namespace host::uikit {

/// Makes wheels of rows to choose from; the classes of views and scrolling come first.
void export_picker();

}  // namespace host::uikit
