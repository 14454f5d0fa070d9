#pragma once

namespace host::uikit {

/// Registers stacks of pages and their bars; the classes of views and scrolling come first.
void export_navigation();

}  // namespace host::uikit
