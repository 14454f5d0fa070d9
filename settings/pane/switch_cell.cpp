#include "settings/pane/switch_cell.h"

#include "settings/pictures.h"

namespace sonavue {
namespace {

PSTableCell init_switch_cell(SRSwitchTableCell self, UITableViewCellStyle style,
                             NSString reuse_identifier, PSSpecifier specifier) {
  const auto made = objc::send_super<SRSwitchTableCell>(
      self, SRSwitchTableCell::cls(), "initWithStyle:reuseIdentifier:specifier:"_sel, style,
      reuse_identifier, specifier);
  if (made) made.switch_control().setOnTintColor(pattern_color());
  return made;
}

}  // namespace

void make_switch_cell() {
  objc::make_own_class<SRSwitchTableCell>([](objc::ClassBuilder& builder) {
    builder.method<&init_switch_cell>("initWithStyle:reuseIdentifier:specifier:");
  });
}

}  // namespace sonavue
