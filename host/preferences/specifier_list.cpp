#include "host/preferences/specifier_list.h"

#include "host/preferences/cell_types.h"
#include "host/preferences/specifier.h"
#include "host/runtime/log.h"
#include "platform/UIKit/UIImage.h"

namespace host::preferences {
namespace {

template <class T>
T of_class(objc::Object object) {
  const bool is_one = object && objc::cast<NSObject>(object).isKindOfClass(T::cls());
  return is_one ? objc::cast<T>(object) : T();
}

NSString text_in(NSDictionary item, NSString key) {
  return of_class<NSString>(item.objectForKey(key));
}

/// The message in an entry of an item, or another.
objc::Sel message_in(NSDictionary item, NSString key, objc::Sel otherwise) {
  const NSString name = text_in(item, key);
  return name ? sel_registerName(name.UTF8String()) : otherwise;
}

NSString localized(NSString text, NSBundle bundle) {
  return text && bundle ? bundle.localizedStringForKey(text, text, nil) : text;
}

objc::Class detail_of(NSDictionary item, PSCellType type) {
  const NSString name = text_in(item, "detail"_ns);
  if (!name) return type == kLinkListCell ? objc_getClass("PSListItemsController") : nullptr;
  const objc::Class found = objc_getClass(name.UTF8String());
  if (!found) spdlog::warn("a settings row leads nowhere: there is no class {}", name.UTF8String());
  return found;
}

void add_choices(PSSpecifier specifier, NSDictionary item, NSBundle bundle) {
  const auto values = of_class<NSArray>(item.objectForKey("validValues"_ns));
  const auto titles = of_class<NSArray>(item.objectForKey("validTitles"_ns));
  if (!values || !titles) return;
  const auto shown = NSMutableArray::array();
  for (const objc::Object title : titles.of())
    shown.addObject(localized(of_class<NSString>(title), bundle));
  specifier.setValues(values, shown);
}

void add_icon(PSSpecifier specifier, NSDictionary item, NSBundle bundle) {
  const NSString name = text_in(item, "icon"_ns);
  if (!name || !bundle) return;
  const NSString file = bundle.pathForResource(name, nil);
  if (const UIImage icon = file ? UIImage::imageWithContentsOfFile(file) : UIImage())
    specifier.setProperty(icon, "iconImage"_ns);
}

PSSpecifier specifier_of(NSDictionary item, NSBundle bundle, objc::Object target) {
  const PSCellType type = cell_type_named(text_in(item, "cell"_ns));
  const bool has_value = type != kGroupCell && item.objectForKey("key"_ns);
  const auto made = PSSpecifier::preferenceSpecifierNamed(
      localized(text_in(item, "label"_ns), bundle), target,
      message_in(item, "set"_ns, has_value ? "setPreferenceValue:specifier:"_sel : nullptr),
      message_in(item, "get"_ns, has_value ? "readPreferenceValue:"_sel : nullptr),
      detail_of(item, type), type, nullptr);
  state_of(made).set_properties(item);
  if (const NSString footer = text_in(item, "footerText"_ns))
    made.setProperty(localized(footer, bundle), "footerText"_ns);
  if (bundle) made.setProperty(bundle.bundlePath(), kBundlePath());
  made.set_action(message_in(item, "action"_ns, nullptr));
  add_choices(made, item, bundle);
  add_icon(made, item, bundle);
  return made;
}

}  // namespace

NSArray specifiers_of_items(NSArray items, NSBundle bundle, objc::Object target) {
  const auto specifiers = NSMutableArray::array();
  for (const objc::Object each : items.of()) {
    if (const auto item = of_class<NSDictionary>(each))
      specifiers.addObject(specifier_of(item, bundle, target));
  }
  return specifiers;
}

SpecifierList read_specifier_list(NSBundle bundle, NSString name, objc::Object target) {
  const SpecifierList none{NSArray::array(), nil};
  const char* text = name ? name.UTF8String() : "(null)";
  const NSString file = name ? bundle.pathForResource(name, "plist"_ns) : NSString();
  if (!file) {
    spdlog::warn("a settings page is empty: {} has no {}.plist", bundle.bundlePath().UTF8String(),
                 text);
    return none;
  }
  const auto list = NSDictionary::dictionaryWithContentsOfFile(file);
  const auto items = list ? of_class<NSArray>(list.objectForKey("items"_ns)) : NSArray();
  if (!items) {
    spdlog::warn("a settings page is empty: {} has no items", file.UTF8String());
    return none;
  }
  return {specifiers_of_items(items, bundle, target), localized(text_in(list, "title"_ns), bundle)};
}

}  // namespace host::preferences
