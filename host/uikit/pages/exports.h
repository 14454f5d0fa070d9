#pragma once

namespace host::uikit {

/// Makes controllers of pages that are turned sideways; the classes of views come first.
void export_pages();

}  // namespace host::uikit
