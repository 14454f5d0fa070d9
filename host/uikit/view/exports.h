#pragma once

namespace host::uikit {

/// Makes the classes of views and windows; a second call does nothing. QuartzCore and the drawing
/// classes must have been made before.
void export_views();

}  // namespace host::uikit
