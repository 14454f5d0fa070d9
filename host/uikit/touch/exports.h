#pragma once

namespace host::uikit {

void export_touches();

}  // namespace host::uikit
