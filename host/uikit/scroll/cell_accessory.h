#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UITableViewCell.h"

namespace host::uikit {

/// Returns the mark at the right of a row, in its natural size; null for a type without a mark.
objc::Ref<UIView> make_cell_accessory(UITableViewCellAccessoryType type);

}  // namespace host::uikit
