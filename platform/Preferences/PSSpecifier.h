#pragma once

#include "objc/field.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"

/// The kind of a row, as `+[PSTableCell cellTypeFromString:]` returns it.
using PSCellType = NSInteger;

/// One row of a settings page, or the start of a group of rows: its name, its look, and the target
/// that gets and sets its value.
struct PSSpecifier : objc::Bound<PSSpecifier, "PSSpecifier", NSObject> {
  /// The target is not retained. `set` takes the value and the specifier, `get` the specifier.
  static PSSpecifier preferenceSpecifierNamed(NSString name, objc::Object target, objc::Sel set,
                                              objc::Sel get, objc::Class detail, PSCellType cell,
                                              objc::Class edit) {
    return call_class<"preferenceSpecifierNamed:target:set:get:detail:cell:edit:", PSSpecifier>(
        name, target, set, get, detail, cell, edit);
  }
  static PSSpecifier emptyGroupSpecifier() {
    return call_class<"emptyGroupSpecifier", PSSpecifier>();
  }
  static PSSpecifier groupSpecifierWithName(NSString name) {
    return call_class<"groupSpecifierWithName:", PSSpecifier>(name);
  }

  NSString name() const { return call<"name", NSString>(); }
  void setName(NSString name) const { call<"setName:">(name); }
  /// The property "id", or the name if there is none.
  NSString identifier() const { return call<"identifier", NSString>(); }
  void setIdentifier(NSString identifier) const { call<"setIdentifier:">(identifier); }
  objc::Object target() const { return call<"target", objc::Object>(); }
  void setTarget(objc::Object target) const { call<"setTarget:">(target); }

  objc::Object propertyForKey(NSString key) const {
    return call<"propertyForKey:", objc::Object>(key);
  }
  void setProperty(objc::Object value, NSString key) const {
    call<"setProperty:forKey:">(value, key);
  }
  /// The choices of a list: values and, in the same order, their titles.
  void setValues(NSArray values, NSArray titles) const {
    call<"setValues:titles:">(values, titles);
  }
  NSArray values() const { return call<"values", NSArray>(); }
  /// Titles by value.
  NSDictionary titleDictionary() const { return call<"titleDictionary", NSDictionary>(); }

  /// Sets the message that a tap sends to the target. There is no setter for it, only the field
  /// `action`.
  void set_action(objc::Sel action) const {
    if (objc::Sel* field = objc::field<objc::Sel>(*this, "action")) *field = action;
  }
};
