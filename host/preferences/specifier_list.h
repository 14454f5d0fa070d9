#pragma once

#include "platform/Foundation/NSBundle.h"
#include "platform/Preferences/PSSpecifier.h"

namespace host::preferences {

/// The property of a specifier that leads to a page: the folder of the page's bundle.
inline NSString kBundlePath() {
  return "bundlePath"_ns;
}

/// Another of its properties: the items of a page that has no class of its own.
inline NSString kItems() {
  return "items"_ns;
}

/// A page as a property list describes it.
struct SpecifierList {
  NSArray specifiers;  // empty when there is no usable list
  NSString title;      // nil without one
};

/// Reads `NAME.plist` of a bundle. The log says why a list is not used.
SpecifierList read_specifier_list(NSBundle bundle, NSString name, objc::Object target);

/// Makes the specifiers of a list's `items`. Every entry of an item becomes a property.
NSArray specifiers_of_items(NSArray items, NSBundle bundle, objc::Object target);

}  // namespace host::preferences
