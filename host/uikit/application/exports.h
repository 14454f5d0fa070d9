#pragma once

namespace host::uikit {

/// Registers the classes of touches, recognisers, views, controls and the application. Requires the
/// drawing classes. Idempotent.
void export_application();

}  // namespace host::uikit
