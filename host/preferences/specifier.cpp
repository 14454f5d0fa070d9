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
  state.target_ = target;
  state.set_ = set;
  state.get_ = get;
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
  if (!properties_)
    properties_ = objc::Ref<NSMutableDictionary>::retain(NSMutableDictionary::dictionary());
  if (value) {
    properties_->setObject(value, key);
  } else {
    properties_->removeObjectForKey(key);
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

objc::Sel Specifier::action() const {
  const objc::Sel* field = objc::field<objc::Sel>(self, "action");
  return field ? *field : nullptr;
}

objc::Object Specifier::value() const {
  return understands(target_, get_) ? objc::send<objc::Object>(target_, get_, self)
                                    : objc::Object();
}

void Specifier::set_value(objc::Object value) const {
  if (understands(target_, set_)) objc::send<>(target_, set_, value, self);
}

void Specifier::send_action() const {
  uikit::send_action_message(target_, action(), self, nil);
}

void export_specifier() {
  objc::ClassBuilder("PSSpecifier", "NSObject")
      .state<Specifier>()
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
      .method<&Specifier::set_values>("setValues:titles:")
      .method<&Specifier::values>("values")
      .method<&Specifier::titles>("titleDictionary")
      .finish();
}

}  // namespace host::preferences
