#include "host/preferences/list_controller.h"
#include "host/preferences/specifier_list.h"
#include "host/preferences/stored_value.h"

// Pages that are described by property lists, with values in files of preferences.

namespace host::preferences {

// A subclass makes its own rows; without one, the row that leads here may have them.
NSArray ListController::specifiers() {
  const auto items = objc::cast<NSArray>(self.specifier().propertyForKey(kItems()));
  if (!self.cached_specifiers() && items)
    keep(specifiers_of_items(items, objc::send<NSBundle>(self, "bundle"_sel), self));
  return self.cached_specifiers();
}

// The page that leads here says where this one comes from.
NSBundle ListController::bundle() {
  const auto path = objc::cast<NSString>(self.specifier().propertyForKey(kBundlePath()));
  if (path) {
    if (const NSBundle found = NSBundle::bundleWithPath(path)) return found;
  }
  const auto parent = objc::cast<PSListController>(parent_);
  if (parent && parent.respondsToSelector("bundle"_sel))
    return objc::send<NSBundle>(parent, "bundle"_sel);
  return NSBundle::mainBundle();
}

NSArray ListController::load_list(NSString name, objc::Object target) {
  const NSBundle bundle = objc::send<NSBundle>(self, "bundle"_sel);
  const SpecifierList list = read_specifier_list(bundle, name, target);
  if (list.title) self.setTitle(list.title);
  return list.specifiers;
}

objc::Object ListController::read_value(PSSpecifier specifier) {
  return stored_value(specifier);
}

void ListController::write_value(objc::Object value, PSSpecifier specifier) {
  store_value(value, specifier);
}

}  // namespace host::preferences
