#pragma once

namespace host::uikit {

void export_application();

}  // namespace host::uikit
