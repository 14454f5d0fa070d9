#pragma once

namespace host::uikit {

/// Makes the classes of touches, recognisers, views, controls and the application; a second call
/// does nothing. The drawing classes must have been made before.
void export_application();

}  // namespace host::uikit
