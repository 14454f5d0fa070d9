#include "host/applications/loader/loader_entries.h"

#include <algorithm>
#include <optional>

#include "host/activator/event/strings.h"
#include "host/runtime/log.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"

namespace host::settings {
namespace {

using activator::to_ns;
using activator::to_string;

// The class of pages that are only a list.
constexpr const char* kPlainPage = "PSListController";

bool is_there(const std::string& file) {
  return NSFileManager::defaultManager().fileExistsAtPath(to_ns(file));
}

NSDictionary dictionary_in(objc::Object object) {
  const bool is_one = objc::cast<NSObject>(object).isKindOfClass(NSDictionary::cls());
  return is_one ? objc::cast<NSDictionary>(object) : NSDictionary();
}

std::string text_in(NSDictionary list, const char* key) {
  return to_string(list.objectForKey(to_ns(key)));
}

/// Empty when the list does not have its page's rows in it.
objc::Ref<NSArray> rows_in(NSDictionary list) {
  const auto items = objc::cast<NSObject>(list.objectForKey("items"_ns));
  const bool is_array = items && items.isKindOfClass(NSArray::cls());
  return objc::Ref<NSArray>::retain(is_array ? objc::cast<NSArray>(items) : NSArray());
}

/// Lists without a bundle of their own have their files beside them.
std::string bundle_folder(NSDictionary entry) {
  const std::string name = text_in(entry, "bundle");
  return name.empty() ? kLoaderFolder : std::string(kBundleFolder) + "/" + name + ".bundle";
}

/// Returns the icon's path, in the entry's bundle or beside the list.
std::string icon_file(NSDictionary entry) {
  std::string name = text_in(entry, "icon");
  if (name.empty() || name.starts_with('/')) return name;
  const std::string in_bundle = bundle_folder(entry) + "/" + name;
  return is_there(in_bundle) ? in_bundle : std::string(kLoaderFolder) + "/" + name;
}

std::optional<LoaderEntry> read_entry(const std::string& file) {
  const auto refused = [&](const char* why) {
    spdlog::warn("{} is left out of the settings: {}", file, why);
    return std::nullopt;
  };
  const NSDictionary list = NSDictionary::dictionaryWithContentsOfFile(to_ns(file));
  if (!list) return refused("it is no property list");
  const NSDictionary inner = dictionary_in(list.objectForKey("entry"_ns));
  const NSDictionary entry = inner ? inner : list;
  LoaderEntry read{text_in(entry, "label"), text_in(entry, "detail"), icon_file(entry),
                   bundle_folder(entry), rows_in(list)};
  if (read.detail.empty() && read.items) read.detail = kPlainPage;
  if (read.label.empty()) return refused("it has no label");
  if (read.detail.empty() || !objc_getClass(read.detail.c_str()))
    return refused("the class of its page is missing");
  return read;
}

}  // namespace

std::vector<LoaderEntry> read_loader_entries() {
  std::vector<LoaderEntry> entries;
  const NSArray names =
      NSFileManager::defaultManager().contentsOfDirectoryAtPath(to_ns(kLoaderFolder), nullptr);
  if (!names) return entries;
  for (const NSString name : names.of<NSString>()) {
    if (!name.hasSuffix(".plist"_ns)) continue;
    if (auto entry = read_entry(std::string(kLoaderFolder) + "/" + to_string(name)))
      entries.push_back(std::move(*entry));
  }
  std::sort(entries.begin(), entries.end(),
            [](const auto& left, const auto& right) { return left.label < right.label; });
  return entries;
}

}  // namespace host::settings
