#pragma once

namespace host::uikit {

/// Gives the process its scroll views, tables and page controls; views, text and recognisers must
/// have been given before. Calling it twice is harmless.
void export_scroll();

}  // namespace host::uikit
