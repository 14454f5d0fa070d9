#pragma once

namespace host::uikit {

void export_gesture();

}  // namespace host::uikit
