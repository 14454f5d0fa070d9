#pragma once

namespace host::uikit {

/// Registers the device class, which describes the chosen device model.
void export_device();

}  // namespace host::uikit
