#include "settings/pane/specifiers.h"

#include "platform/Preferences/PSListItemsController.h"
#include "platform/Preferences/PSTableCell.h"
#include "settings/choices.h"
#include "settings/pane/switch_cell.h"
#include "settings/pictures.h"
#include "settings/preferences.h"
#include "settings/texts.h"

namespace sonavue {
namespace {

enum class Stored { kNo, kYes };

PSSpecifier row(NSString kind, NSString name, objc::Object target, Stored stored,
                objc::Class detail) {
  const bool has_value = stored == Stored::kYes;
  return PSSpecifier::preferenceSpecifierNamed(
      name, target, has_value ? "setValue:forSpecifier:"_sel : objc::Sel(),
      has_value ? "getValue:"_sel : objc::Sel(), detail, PSTableCell::cellTypeFromString(kind),
      nullptr);
}

PreferenceKey key_of(PSSpecifier row) {
  return PreferenceKey(getNotTranslated(row.name()));
}

}  // namespace

PSSpecifier group_with_footer(NSString footer_identifier) {
  const PSSpecifier group = PSSpecifier::emptyGroupSpecifier();
  group.setProperty(Translator(footer_identifier), "footerText"_ns);
  return group;
}

PSSpecifier group_with_header(objc::Object target, NSString class_name) {
  const PSSpecifier group = row("PSGroupCell"_ns, ""_ns, target, Stored::kNo, nullptr);
  if (class_name) group.setProperty(class_name, "headerCellClass"_ns);
  return group;
}

PSSpecifier switch_row(objc::Object target, NSString identifier) {
  const PSSpecifier made =
      row("PSSwitchCell"_ns, Translator(identifier), target, Stored::kYes, nullptr);
  const objc::Object cell(SRSwitchTableCell::cls());
  if (cell) made.setProperty(cell, "cellClass"_ns);
  return made;
}

PSSpecifier list_row(objc::Object target, NSString identifier, NSArray choices) {
  const PSSpecifier made = row("PSLinkListCell"_ns, Translator(identifier), target, Stored::kYes,
                               PSListItemsController::cls());
  made.setValues(choices, translated(choices));
  return made;
}

PSSpecifier link_row(objc::Object target, NSString identifier, objc::Class detail) {
  return row("PSLinkCell"_ns, Translator(identifier), target, Stored::kNo, detail);
}

PSSpecifier action_row(objc::Object target, NSString identifier, objc::Sel action) {
  const PSSpecifier made = link_row(target, identifier, nullptr);
  made.set_action(action);
  return made;
}

PSSpecifier with_icon(PSSpecifier row, NSString picture) {
  row.setProperty(imageFromFile(picture), "iconImage"_ns);
  return row;
}

objc::Object row_value(PSSpecifier row) {
  return stored_value(key_of(row));
}

void store_row_value(objc::Object value, PSSpecifier row) {
  store(value, key_of(row));
}

}  // namespace sonavue
