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

/// A group for a name that nobody knows.
PSCellType cell_type_named(NSString name);

/// How a row of the kind is laid out, and by which class where its specifier names none.
UITableViewCellStyle cell_style(PSCellType type);
const char* cell_class_name(PSCellType type);

}  // namespace host::preferences
