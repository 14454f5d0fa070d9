#include "host/preferences/table_cell.h"

#include "host/preferences/cell_types.h"
#include "host/preferences/specifier.h"

namespace host::preferences {
namespace {

bool leads_on(PSCellType type) {
  return type == kLinkCell || type == kLinkListCell;
}

/// Returns what a row shows for a value: its title in a list, the value itself when it is text,
/// otherwise its description.
NSString title_of(objc::Object value, PSSpecifier specifier) {
  if (!value) return nil;
  if (const NSDictionary titles = specifier.titleDictionary())
    if (const objc::Object title = titles.objectForKey(value)) return objc::cast<NSString>(title);
  const bool is_text = objc::cast<NSObject>(value).isKindOfClass(NSString::cls());
  return is_text ? objc::cast<NSString>(value) : objc::cast<NSObject>(value).description();
}

}  // namespace

PSCellType TableCell::cell_type(objc::Object, NSString name) {
  return cell_type_named(name);
}

PSTableCell TableCell::init(UITableViewCellStyle style, NSString reuse_identifier,
                            PSSpecifier specifier) {
  if (!self.UITableViewCell::initWithStyle(style, reuse_identifier)) return nil;
  self.setSpecifier(specifier);
  self.refreshCellContentsWithSpecifier(specifier);
  return self;
}

void TableCell::refresh(PSSpecifier specifier) {
  if (!specifier) return;
  const PSCellType type = state_of(specifier).cell_type();
  if (type == kGroupCell) return;
  self.textLabel().setText(specifier.name());
  const auto icon = objc::cast<UIImage>(specifier.propertyForKey("iconImage"_ns));
  if (icon || self.imageView().image()) self.imageView().setImage(icon);
  // The mark of an item belongs to its list.
  if (type != kListItemCell)
    self.setAccessoryType(leads_on(type) ? UITableViewCellAccessoryDisclosureIndicator
                                         : UITableViewCellAccessoryNone);
  self.textLabel().setTextColor(type == kButtonCell ? self.tintColor() : UIColor::blackColor());
  const bool answers = leads_on(type) || type == kButtonCell || type == kListItemCell;
  self.setSelectionStyle(answers ? UITableViewCellSelectionStyleDefault
                                 : UITableViewCellSelectionStyleNone);
  show_value(specifier);
  self.setNeedsLayout();
}

void TableCell::show_value(PSSpecifier specifier) const {
  if (const UILabel value = self.detailTextLabel())
    value.setText(title_of(state_of(specifier).value(), specifier));
}

void export_table_cell() {
  objc::ClassBuilder("PSTableCell", "UITableViewCell")
      .state<TableCell>()
      .class_method<&TableCell::cell_type>("cellTypeFromString:")
      .method<&TableCell::init>("initWithStyle:reuseIdentifier:specifier:")
      .method<&TableCell::specifier>("specifier")
      .method<&TableCell::set_specifier>("setSpecifier:")
      .method<&TableCell::refresh>("refreshCellContentsWithSpecifier:")
      .finish();
}

}  // namespace host::preferences
