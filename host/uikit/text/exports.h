#pragma once

namespace host::uikit {

/// Registers labels, text fields and backdrops, and adds drawing to strings. Requires the classes
/// of views. Idempotent.
void export_text();

}  // namespace host::uikit
