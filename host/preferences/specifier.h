#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Preferences/PSSpecifier.h"

namespace host::preferences {

/// The target and the messages are instance variables that other code reads and writes by name:
/// `target` (not retained), `setter`, `getter` and `action`.
class Specifier : public objc::Implementation<Specifier, PSSpecifier> {
 public:
  explicit Specifier(PSSpecifier owner) : Implementation(owner) {}

  static PSSpecifier named(objc::Object cls, NSString name, objc::Object target, objc::Sel set,
                           objc::Sel get, objc::Class detail, PSCellType cell, objc::Class edit);
  static PSSpecifier empty_group(objc::Object cls);
  static PSSpecifier group_named(objc::Object cls, NSString name);

  NSString name() const { return name_.get(); }
  void set_name(NSString name) { name_ = objc::Ref<NSString>::adopt(name.copy()); }
  NSString identifier() const;
  void set_identifier(NSString identifier);
  objc::Object target() const;
  void set_target(objc::Object target);
  objc::Object property(NSString key) const;
  void set_property(objc::Object value, NSString key);
  void remove_property(NSString key) { set_property(nil, key); }
  NSMutableDictionary properties();
  void set_properties(NSDictionary properties);
  void set_values(NSArray values, NSArray titles);
  NSArray values() const { return values_.get(); }
  NSDictionary titles() const { return titles_.get(); }

  // For the pages.
  PSCellType cell_type() const { return cell_; }
  objc::Class detail() const { return detail_; }
  objc::Sel action() const;
  objc::Sel setter() const;
  objc::Sel getter() const;
  void set_button_action(objc::Sel action) { self.set_action(action); }
  void set_detail(objc::Class detail) { detail_ = detail; }
  /// Returns the value that the target's getter returns; nil when there is no target or getter.
  objc::Object value() const;
  void set_value(objc::Object value);
  void send_action() const;

 private:
  objc::Ref<NSString> name_;
  objc::Ref<NSMutableDictionary> properties_;
  objc::Ref<NSArray> values_;
  objc::Ref<NSDictionary> titles_;
  objc::Class detail_ = nullptr;
  objc::Class edit_ = nullptr;
  PSCellType cell_ = 0;
};

inline Specifier& state_of(PSSpecifier specifier) {
  return objc::state_of<Specifier>(specifier);
}

void export_specifier();

}  // namespace host::preferences
