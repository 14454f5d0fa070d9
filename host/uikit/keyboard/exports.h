#pragma once

namespace host::uikit {

/// Registers the keyboard's classes, and from then on shows the keyboard for responders that take
/// text. Requires the classes of views and text.
void export_keyboard();

}  // namespace host::uikit
