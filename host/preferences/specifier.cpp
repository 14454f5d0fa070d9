#include "host/preferences/specifier.h"

#include <algorithm>

#include "host/preferences/cell_types.h"
#include "host/uikit/gesture/action_message.h"

namespace host::preferences {
namespace {

PSSpecifier make(objc::Object cls) {
  return objc::send<PSSpecifier>(objc::send<PSSpecifier>(cls, "alloc"_sel), "init"_sel)
      .autorelease();
}

bool understands(objc::Object target, objc::Sel selector) {
  return target && selector && objc::cast<NSObject>(target).respondsToSelector(selector);
}

}  // namespace

PSSpecifier Specifier::named(objc::Object cls, NSString name, objc::Object target, objc::Sel set,
                             objc::Sel get, objc::Class detail, PSCellType cell, objc::Class edit) {
  const PSSpecifier made = make(cls);
  Specifier& state = objc::state_of<Specifier>(made);
  made.setName(name);
  state.set_target(target);
  *objc::field<objc::Sel>(made, "setter") = set;
  *objc::field<objc::Sel>(made, "getter") = get;
  state.detail_ = detail;
  state.cell_ = cell;
  state.edit_ = edit;
  return made;
}

PSSpecifier Specifier::empty_group(objc::Object cls) {
  return group_named(cls, nil);
}

PSSpecifier Specifier::group_named(objc::Object cls, NSString name) {
  return named(cls, name, nil, nullptr, nullptr, nullptr, kGroupCell, nullptr);
}

NSString Specifier::identifier() const {
  const auto own = objc::cast<NSString>(property("id"_ns));
  return own ? own : self.name();
}

void Specifier::set_identifier(NSString identifier) {
  self.setProperty(identifier, "id"_ns);
}

objc::Object Specifier::property(NSString key) const {
  return properties_ ? properties_->objectForKey(key) : objc::Object();
}

void Specifier::set_property(objc::Object value, NSString key) {
  if (!key) return;
  if (value) {
    properties().setObject(value, key);
  } else {
    properties().removeObjectForKey(key);
  }
}

void Specifier::set_values(NSArray values, NSArray titles) {
  values_ = objc::Ref<NSArray>::adopt(values.copy());
  const auto by_value = NSMutableDictionary::dictionary();
  const NSUInteger count = values && titles ? std::min(values.count(), titles.count()) : 0;
  for (NSUInteger index = 0; index < count; ++index)
    by_value.setObject(titles.objectAtIndex(index), values.objectAtIndex(index));
  titles_ = objc::Ref<NSDictionary>::retain(by_value);
}

NSMutableDictionary Specifier::properties() {
  if (!properties_)
    properties_ = objc::Ref<NSMutableDictionary>::retain(NSMutableDictionary::dictionary());
  return properties_.get();
}

void Specifier::set_properties(NSDictionary properties) {
  const NSDictionary wanted = properties ? properties : NSDictionary::dictionary();
  properties_ =
      objc::Ref<NSMutableDictionary>::retain(NSMutableDictionary::dictionaryWithDictionary(wanted));
}

objc::Object Specifier::target() const {
  return objc::Object(*objc::field<objc::Id>(self, "target"));
}

void Specifier::set_target(objc::Object target) {
  *objc::field<objc::Id>(self, "target") = target.id();
}

objc::Sel Specifier::action() const {
  return *objc::field<objc::Sel>(self, "action");
}

objc::Sel Specifier::setter() const {
  return *objc::field<objc::Sel>(self, "setter");
}

objc::Sel Specifier::getter() const {
  return *objc::field<objc::Sel>(self, "getter");
}

objc::Object Specifier::value() const {
  return understands(target(), getter()) ? objc::send<objc::Object>(target(), getter(), self)
                                         : objc::Object();
}

void Specifier::set_value(objc::Object value) {
  if (understands(target(), setter())) objc::send<>(target(), setter(), value, self);
}

void Specifier::send_action() const {
  uikit::send_action_message(target(), action(), self, nil);
}

void export_specifier() {
  objc::ClassBuilder("PSSpecifier", "NSObject")
      .state<Specifier>()
      .field<objc::Id>("target")
      .field<objc::Sel>("setter")
      .field<objc::Sel>("getter")
      .field<objc::Sel>("action")
      .class_method<&Specifier::named>("preferenceSpecifierNamed:target:set:get:detail:cell:edit:")
      .class_method<&Specifier::empty_group>("emptyGroupSpecifier")
      .class_method<&Specifier::group_named>("groupSpecifierWithName:")
      .method<&Specifier::name>("name")
      .method<&Specifier::set_name>("setName:")
      .method<&Specifier::identifier>("identifier")
      .method<&Specifier::set_identifier>("setIdentifier:")
      .method<&Specifier::target>("target")
      .method<&Specifier::set_target>("setTarget:")
      .method<&Specifier::property>("propertyForKey:")
      .method<&Specifier::set_property>("setProperty:forKey:")
      .method<&Specifier::remove_property>("removePropertyForKey:")
      .method<&Specifier::properties>("properties")
      .method<&Specifier::set_properties>("setProperties:")
      .method<&Specifier::set_button_action>("setButtonAction:")
      .method<&Specifier::action>("buttonAction")
      .method<&Specifier::value>("performGetter")
      .method<&Specifier::set_value>("performSetterWithValue:")
      .method<&Specifier::set_values>("setValues:titles:")
      .method<&Specifier::values>("values")
      .method<&Specifier::titles>("titleDictionary")
      .finish();
}

}  // namespace host::preferences
