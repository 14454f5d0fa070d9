#pragma once

namespace host::uikit {

/// Registers navigation items and bar button items.
void export_navigation_items();

}  // namespace host::uikit
