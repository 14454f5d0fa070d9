#include "host/foundation/load_filter.h"

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSString.h"

namespace host::foundation {
namespace {

template <class Matches>
bool any_matches(objc::Object list, Matches matches) {
  const auto names = objc::cast<NSArray>(list);
  if (!names || !names.isKindOfClass(NSArray::cls())) return false;
  for (NSUInteger i = 0; i < names.count(); ++i) {
    const auto name = objc::cast<NSString>(names.objectAtIndex(i));
    if (name.isKindOfClass(NSString::cls()) && matches(name.UTF8String())) return true;
  }
  return false;
}

}  // namespace

Admission admission(const std::string& path, std::string_view bundle_identifier,
                    std::string_view executable) {
  const auto list =
      NSDictionary::dictionaryWithContentsOfFile(NSString::stringWithUTF8String(path.c_str()));
  const auto filter = objc::cast<NSDictionary>(list.objectForKey("Filter"_ns));
  if (!filter || !filter.isKindOfClass(NSDictionary::cls())) return Admission::kNoFilter;

  const objc::Object bundles = filter.objectForKey("Bundles"_ns);
  const objc::Object executables = filter.objectForKey("Executables"_ns);
  const objc::Object classes = filter.objectForKey("Classes"_ns);
  if (!bundles && !executables && !classes) return Admission::kNoFilter;
  const bool admitted =
      (!bundles || any_matches(bundles, [&](auto name) { return bundle_identifier == name; })) &&
      (!executables || any_matches(executables, [&](auto name) { return executable == name; })) &&
      (!classes || any_matches(classes, [](auto name) { return objc_getClass(name) != nullptr; }));
  return admitted ? Admission::kAdmitted : Admission::kNotForThisProcess;
}

}  // namespace host::foundation
