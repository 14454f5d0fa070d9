#include "settings/pane/switch_cell.h"

#include "objc/class_builder.h"
#include "settings/pictures.h"

namespace sonavue {
namespace {

PSTableCell init(SRSwitchTableCell self, UITableViewCellStyle style, NSString reuse_identifier,
                 PSSpecifier specifier) {
  const auto made = objc::send_super<SRSwitchTableCell>(
      self, SRSwitchTableCell::cls(), "initWithStyle:reuseIdentifier:specifier:"_sel, style,
      reuse_identifier, specifier);
  if (made) made.switch_control().setOnTintColor(pattern_color());
  return made;
}

}  // namespace

void make_switch_cell() {
  objc::ClassBuilder("SRSwitchTableCell", "PSSwitchTableCell")
      .method<&init>("initWithStyle:reuseIdentifier:specifier:")
      .finish();
}

}  // namespace sonavue
