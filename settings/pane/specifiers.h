#pragma once

#include "objc/own_class.h"
#include "platform/Preferences/PSSpecifier.h"

// The rows of the pages. Each is called by the text of a short English name, under which its value
// is stored too.

namespace sonavue {

PSSpecifier group_with_footer(NSString footer_identifier);
/// A group whose header is a view of the class of that name; without a name, no header.
PSSpecifier group_with_header(objc::Object target, NSString class_name);
/// The same with a class of our own: the settings look it up by its name, which has to be ours.
template <objc::OwnHandle Cell>
PSSpecifier group_with_header(objc::Object target) {
  return group_with_header(
      target, Cell::cls() ? NSString::stringWithUTF8String(Cell::class_name()) : NSString());
}

/// The target answers `getValue:` and `setValue:forSpecifier:`.
PSSpecifier switch_row(objc::Object target, NSString identifier);
/// A list of its own page; the choices are offered by their texts.
PSSpecifier list_row(objc::Object target, NSString identifier, NSArray choices);
PSSpecifier link_row(objc::Object target, NSString identifier, objc::Class detail);
PSSpecifier action_row(objc::Object target, NSString identifier, objc::Sel action);

/// The same row with one of our pictures before its name.
PSSpecifier with_icon(PSSpecifier row, NSString picture);

/// What is stored for the row; nil when there is nothing.
objc::Object row_value(PSSpecifier row);
/// Stores it for the row and lets the home screen know.
void store_row_value(objc::Object value, PSSpecifier row);

}  // namespace sonavue
