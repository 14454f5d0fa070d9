#pragma once

namespace host::uikit {

/// Makes what a page says of its bar, and of the buttons on it.
void export_navigation_items();

}  // namespace host::uikit
