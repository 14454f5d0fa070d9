#pragma once

namespace host::uikit {

/// Registers scroll views, tables and page controls. Requires views, text and recognisers.
/// Idempotent.
void export_scroll();

}  // namespace host::uikit
