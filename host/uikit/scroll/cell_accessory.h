#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UITableViewCell.h"

namespace host::uikit {

/// The mark at the right of a row, in its natural size; nothing for a type without one.
objc::Ref<UIView> make_cell_accessory(UITableViewCellAccessoryType type);

}  // namespace host::uikit
