#pragma once

#include "platform/Preferences/PSTableCell.h"

namespace host::preferences {

enum : PSCellType {
  kGroupCell,
  kLinkCell,
  kLinkListCell,
  kListItemCell,
  kTitleValueCell,
  kSliderCell,
  kSwitchCell,
  kStaticTextCell,
  kEditTextCell,
  kSegmentCell,
  kGiantIconCell,
  kGiantCell,
  kSecureEditTextCell,
  kButtonCell,
  kEditTextViewCell,
};

/// Returns the type with that name; a group for an unknown name.
PSCellType cell_type_named(NSString name);

/// The layout of a row of that type, and the class used when its specifier names none.
UITableViewCellStyle cell_style(PSCellType type);
const char* cell_class_name(PSCellType type);

}  // namespace host::preferences
