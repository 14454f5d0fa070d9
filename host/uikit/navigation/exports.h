#pragma once

namespace host::uikit {

/// Registers navigation controllers and their bars. Requires the classes of views and scrolling.
void export_navigation();

}  // namespace host::uikit
