#include <functional>
#include <string>
#include <utility>

#include "host/foundation/errors.h"
#include "host/foundation/exception.h"
#include "host/foundation/exports.h"
#include "host/foundation/property_list_cache.h"
#include "host/property_list/reader.h"
#include "host/runtime/class_family.h"
#include "host/runtime/log.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSURL.h"

// Foundation's own parsers recurse as deeply as a list is nested, raise for damaged binary lists,
// and take escapes in XML for characters. These methods are all the ways to them: all other
// readers of property lists send one of these messages.

namespace host::foundation {
namespace {

using property_list::Mutability;
using property_list::Reading;

/// Logs a list that comes from no file; the same one only once in a row.
void report_bounds(const std::string& problem, std::size_t hash) {
  static std::size_t last = 0;
  if (std::exchange(last, hash) != hash) spdlog::warn("A property list is not read: {}", problem);
}

std::string_view bytes_of(NSData data) {
  return {static_cast<const char*>(data.bytes()), data.length()};
}

objc::Object list_of_data(NSObject, NSData data, NSUInteger options, NSUInteger* form,
                          objc::Id* error) {
  const auto mutability = options > 2 ? Mutability::kContainers : static_cast<Mutability>(options);
  const Reading reading = property_list::read(bytes_of(data), mutability);
  if (reading.exceeds_bounds)
    report_bounds(reading.problem, std::hash<std::string_view>{}(bytes_of(data)));
  if (form) *form = static_cast<NSUInteger>(reading.form);
  if (error && !reading.list) *error = property_list_error(reading.problem).id();
  return reading.list;
}

/// As the platform, raises for a text that is no list. One that exceeds the bounds is nil.
objc::Object list_or_exception(const Reading& reading, std::string_view text) {
  if (reading.list || text.empty()) return reading.list;
  if (!reading.exceeds_bounds) raise("NSParseErrorException"_ns, reading.problem);
  report_bounds(reading.problem, std::hash<std::string_view>{}(text));
  return nil;
}

std::string_view characters_of(NSString text) {
  const char* characters = text.UTF8String();
  return characters ? characters : "";
}

objc::Object list_of_text(NSString self) {
  const auto text = characters_of(self);
  return list_or_exception(property_list::read(text, Mutability::kContainers), text);
}

objc::Object table_of_text(NSString self) {
  const auto text = characters_of(self);
  return list_or_exception(property_list::read_texts(text), text);
}

/// Makes a copy of the list in the collection that is being initialised.
template <objc::Handle Collection, objc::FixedString Initialiser>
Collection with_list(Collection self, objc::Object list) {
  if (objc::cast<NSObject>(list).isKindOfClass(Collection::cls()))
    return objc::send<Collection>(self, objc::selector<Initialiser>(), list);
  objc::send<>(self, "release"_sel);
  return Collection();
}

template <objc::Handle Collection, objc::FixedString Initialiser>
Collection with_file(Collection self, NSString path) {
  return with_list<Collection, Initialiser>(self, path ? property_list_of_file(path) : nil);
}

template <objc::Handle Collection, objc::FixedString Initialiser>
Collection with_address(Collection self, NSURL address) {
  if (objc::send<BOOL>(address, "isFileURL"_sel))
    return with_file<Collection, Initialiser>(self, address.path());
  const auto data = objc::send<NSData>(objc::Object(objc_getClass("NSData")),
                                       "dataWithContentsOfURL:"_sel, address);
  return with_list<Collection, Initialiser>(self, property_list::read(bytes_of(data)).list);
}

template <objc::Handle Collection, objc::FixedString Initialiser>
void replace_initialisers(const char* cls) {
  replace_in_family<&with_file<Collection, Initialiser>>(objc_getClass(cls),
                                                         "initWithContentsOfFile:");
  replace_in_family<&with_address<Collection, Initialiser>>(objc_getClass(cls),
                                                            "initWithContentsOfURL:");
}

}  // namespace

void export_property_list_reader() {
  static bool is_done = false;
  if (std::exchange(is_done, true)) return;
  const auto metaclass = [](const char* cls) { return objc_getMetaClass(cls); };
  replace_in_family<&list_of_data>(metaclass("NSPropertyListSerialization"),
                                   "propertyListWithData:options:format:error:");
  replace_in_family<&list_of_text>(NSString::cls(), "propertyList");
  replace_in_family<&table_of_text>(NSString::cls(), "propertyListFromStringsFileFormat");
  for (const char* cls : {"NSDictionary", "NSMutableDictionary"})
    replace_initialisers<NSDictionary, "initWithDictionary:">(cls);
  for (const char* cls : {"NSArray", "NSMutableArray"})
    replace_initialisers<NSArray, "initWithArray:">(cls);
}

}  // namespace host::foundation
