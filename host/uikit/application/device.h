#pragma once

namespace host::uikit {

/// Exports the device class; it describes the chosen device model.
void export_device();

}  // namespace host::uikit
