#pragma once

namespace host::uikit {

/// Registers colours, fonts, images, paths, and the row and section of index paths. Idempotent.
void export_drawing();

void export_index_path();

}  // namespace host::uikit
