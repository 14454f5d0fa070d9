#pragma once

namespace host::uikit {

/// Sets the names of the attributes and adds drawing to strings. Requires no views.
void export_string_drawing();

}  // namespace host::uikit
