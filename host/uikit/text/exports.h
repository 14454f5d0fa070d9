#pragma once

namespace host::uikit {

/// Makes labels, text fields and backdrops, and gives strings their drawing; views must have been
/// made. A second call does nothing.
void export_text();

}  // namespace host::uikit
