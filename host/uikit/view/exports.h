#pragma once

namespace host::uikit {

/// Makes the classes of views, windows, touches, recognisers, controls and the application; a
/// second call does nothing. QuartzCore and the drawing classes must have been made before.
void export_views();

}  // namespace host::uikit
