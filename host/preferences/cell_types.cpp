#include "host/preferences/cell_types.h"

#include <array>
#include <string_view>

namespace host::preferences {
namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, kEditTextViewCell + 1> kNames{
    "PSGroupCell",          "PSLinkCell",    "PSLinkListCell",     "PSListItemCell",
    "PSTitleValueCell",     "PSSliderCell",  "PSSwitchCell",       "PSStaticTextCell",
    "PSEditTextCell",       "PSSegmentCell", "PSGiantIconCell",    "PSGiantCell",
    "PSSecureEditTextCell", "PSButtonCell",  "PSEditTextViewCell",
};

}  // namespace

PSCellType cell_type_named(NSString name) {
  const char* wanted = name.UTF8String();
  for (std::size_t index = 0; wanted && index < kNames.size(); ++index)
    if (kNames[index] == wanted) return static_cast<PSCellType>(index);
  return kGroupCell;
}

UITableViewCellStyle cell_style(PSCellType type) {
  const bool shows_value = type == kLinkListCell || type == kTitleValueCell;
  return shows_value ? UITableViewCellStyleValue1 : UITableViewCellStyleDefault;
}

const char* cell_class_name(PSCellType type) {
  switch (type) {
    case kSwitchCell:
      return "PSSwitchTableCell";
    case kSliderCell:
      return "PSSliderTableCell";
    case kEditTextCell:
      return "PSEditableTableCell";
    default:
      return "PSTableCell";
  }
}

}  // namespace host::preferences
