#pragma once

#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {

/// Returns the round button with a cross that empties `field`; autoreleased.
UIButton make_clear_button(UITextField field);

}  // namespace host::uikit
