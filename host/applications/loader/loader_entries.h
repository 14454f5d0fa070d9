#pragma once

#include <string>
#include <vector>

#include "objc/ref.h"
#include "platform/Foundation/NSArray.h"

namespace host::settings {

/// A row of the root list that an extension adds with a property list.
struct LoaderEntry {
  std::string label;
  /// The class of its page.
  std::string detail;
  /// A picture's file; empty for none.
  std::string icon;
  /// The folder of the page's bundle on the device.
  std::string bundle = {};
  /// The rows of a page without a class of its own; empty otherwise.
  objc::Ref<NSArray> items = {};
};

inline constexpr const char* kLoaderFolder = "/Library/PreferenceLoader/Preferences";
inline constexpr const char* kBundleFolder = "/Library/PreferenceBundles";

/// Returns the entries, ordered by label. An invalid file is skipped, and the log says why.
std::vector<LoaderEntry> read_loader_entries();

}  // namespace host::settings
