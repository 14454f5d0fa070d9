#include "host/springboard/model/application_catalog.h"

#include <algorithm>

#include "host/runtime/log.h"
#include "host/springboard/model/strings.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"

namespace host::springboard {
namespace {

InstalledApplication read_application(NSString path) {
  const auto info =
      NSDictionary::dictionaryWithContentsOfFile(path.stringByAppendingString("/Info.plist"_ns));
  InstalledApplication application;
  application.path = to_string(path);
  application.bundle = to_string(string_or_nil(info.objectForKey("CFBundleIdentifier"_ns)));
  application.program = to_string(string_or_nil(info.objectForKey("CFBundleExecutable"_ns)));
  for (const NSString key : {"CFBundleDisplayName"_ns, "CFBundleName"_ns}) {
    if (application.name.empty())
      application.name = to_string(string_or_nil(info.objectForKey(key)));
  }
  if (application.name.empty()) application.name = application.bundle;
  return application;
}

}  // namespace

std::vector<InstalledApplication> read_applications(NSString folder) {
  std::vector<InstalledApplication> applications;
  const NSArray names = NSFileManager::defaultManager().contentsOfDirectoryAtPath(folder, nullptr);
  const NSArray sorted = names.sortedArrayUsingSelector("compare:"_sel);
  for (const NSString name : sorted.of<NSString>()) {
    if (!name.hasSuffix(".app"_ns)) continue;
    const NSString path = folder.stringByAppendingString("/"_ns).stringByAppendingString(name);
    InstalledApplication application = read_application(path);
    const bool known =
        std::any_of(applications.begin(), applications.end(),
                    [&](const auto& other) { return other.bundle == application.bundle; });
    if (application.bundle.empty() || known) {
      spdlog::warn("{} is left out: {}", application.path,
                   known ? "another application has its identifier" : "it has no identifier");
      continue;
    }
    applications.push_back(std::move(application));
  }
  return applications;
}

}  // namespace host::springboard
