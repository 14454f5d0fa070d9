#pragma once

namespace host::uikit {

/// Names the attributes and gives strings their drawing; needs no views.
void export_string_drawing();

}  // namespace host::uikit
