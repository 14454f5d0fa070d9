#include "host/applications/settings/about_page.h"

#include <string>

#include "host/activator/event/strings.h"
#include "host/applications/program/shared_library.h"
#include "host/runtime/device_model.h"
#include "platform/UIKit/UIDevice.h"

namespace host::settings {
namespace {

using activator::to_ns;

PSSpecifier row(objc::Object target, NSString name) {
  return PSSpecifier::preferenceSpecifierNamed(
      name, target, nullptr, "valueOf:"_sel, nullptr,
      PSTableCell::cellTypeFromString("PSTitleValueCell"_ns), nullptr);
}

}  // namespace

NSArray AboutPage::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  const auto rows = NSArray::arrayWithObjects(
      PSSpecifier::emptyGroupSpecifier(), row(self, "Name"_ns), row(self, "Songs"_ns),
      PSSpecifier::emptyGroupSpecifier(), row(self, "Version"_ns), row(self, "Model"_ns),
      row(self, "Screen"_ns));
  self.setSpecifiers(rows);
  return rows;
}

objc::Object AboutPage::value(PSSpecifier specifier) {
  const NSString name = specifier.name();
  const DeviceModel& device = current_device();
  if (name.isEqualToString("Name"_ns)) return UIDevice::currentDevice().name();
  if (name.isEqualToString("Songs"_ns))
    return to_ns(std::to_string(application::count_of_shared_songs()));
  if (name.isEqualToString("Version"_ns)) return UIDevice::currentDevice().systemVersion();
  if (name.isEqualToString("Model"_ns)) return to_ns(device.identifier);
  const auto pixels = [&](double points) {
    return std::to_string(static_cast<int>(points * device.scale));
  };
  return to_ns(pixels(device.width) + " × " + pixels(device.height));
}

void export_about_page() {
  objc::ClassBuilder("PrefsAboutController", "PSListController")
      .state<AboutPage>()
      .method<&AboutPage::specifiers>("specifiers")
      .method<&AboutPage::value>("valueOf:")
      .finish();
}

}  // namespace host::settings
