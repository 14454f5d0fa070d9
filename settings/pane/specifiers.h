#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSSpecifier.h"

// The rows of the pages. Each is named after the text of a short English identifier, which is also
// the key of its stored value.

namespace sonavue {

PSSpecifier group_with_footer(NSString footer_identifier);
/// A group whose header is a view of the class with that name; for nil, a group without a header.
PSSpecifier group_with_header(objc::Object target, NSString class_name);
/// The same with one of our own classes. The settings application looks it up by name, so there is
/// no header if another class has the name.
template <objc::OwnHandle Cell>
PSSpecifier group_with_header(objc::Object target) {
  return group_with_header(
      target, Cell::cls() ? NSString::stringWithUTF8String(Cell::class_name()) : NSString());
}

/// The target must implement `getValue:` and `setValue:forSpecifier:`.
PSSpecifier switch_row(objc::Object target, NSString identifier);
/// A row that opens a page with the choices, which are shown by their texts.
PSSpecifier list_row(objc::Object target, NSString identifier, NSArray choices);
PSSpecifier link_row(objc::Object target, NSString identifier, objc::Class detail);
PSSpecifier action_row(objc::Object target, NSString identifier, objc::Sel action);

/// Adds one of our pictures before the row's name and returns the row.
PSSpecifier with_icon(PSSpecifier row, NSString picture);

/// The stored value of the row; nil if there is none.
objc::Object row_value(PSSpecifier row);
/// Stores the row's value and notifies the home screen.
void store_row_value(objc::Object value, PSSpecifier row);

}  // namespace sonavue
