#pragma once

namespace host::uikit {

void export_control();

}  // namespace host::uikit
