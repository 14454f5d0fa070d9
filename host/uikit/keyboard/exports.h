#pragma once

namespace host::uikit {

/// Makes the keyboard's classes and has it come for whoever takes text; after the views and text.
void export_keyboard();

}  // namespace host::uikit
