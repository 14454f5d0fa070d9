#pragma once

#include <vector>

#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

bool is_number_pad(UIKeyboardType type);

/// Returns twelve cells that fill the board: nine digits, the key that the type puts left of the
/// zero, the zero and backspace.
std::vector<Key> make_number_pad(const BoardMetrics& metrics, UIKeyboardType type);

}  // namespace host::uikit
