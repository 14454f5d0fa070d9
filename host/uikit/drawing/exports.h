#pragma once

namespace host::uikit {

/// Makes colours, fonts, images, paths and the index path's rows in this process; a second call
/// does nothing.
void export_drawing();

void export_index_path();

}  // namespace host::uikit
