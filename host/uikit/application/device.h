#pragma once

namespace host::uikit {

/// The device that the process runs on, by its chosen model.
void export_device();

}  // namespace host::uikit
