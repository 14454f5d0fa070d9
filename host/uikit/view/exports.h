#pragma once

namespace host::uikit {

/// Registers the classes of views and windows. Requires QuartzCore and the drawing classes.
/// Idempotent.
void export_views();

}  // namespace host::uikit
