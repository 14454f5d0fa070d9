#include "host/applications/settings/root_page.h"

#include "host/activator/event/strings.h"
#include "host/activator/page/page_look.h"
#include "host/applications/loader/loader_entries.h"
#include "host/applications/settings/row_icons.h"
#include "host/preferences/specifier_list.h"
#include "host/process/device_images.h"
#include "platform/Activator/LAListenerListViewController.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::settings {
namespace {

PSSpecifier row(objc::Object target, NSString name, objc::Class detail, UIImage icon) {
  const auto made = PSSpecifier::preferenceSpecifierNamed(
      name, target, nullptr, nullptr, detail, PSTableCell::cellTypeFromString("PSLinkCell"_ns),
      nullptr);
  made.setProperty(icon, "iconImage"_ns);
  return made;
}

PSSpecifier link(NSString name, const char* detail, UIImage icon) {
  return row(nil, name, objc_getClass(detail), icon);
}

PSSpecifier entry_row(const LoaderEntry& entry) {
  const auto made =
      link(activator::to_ns(entry.label), entry.detail.c_str(), activator::row_icon(entry.icon));
  made.setProperty(activator::to_ns(entry.bundle), preferences::kBundlePath());
  made.setProperty(entry.items.get(), preferences::kItems());
  return made;
}

}  // namespace

PrefsListController RootPage::init() {
  const auto made = super<PrefsListController>("init"_sel);
  made.setTitle("Settings"_ns);
  return made;
}

NSArray RootPage::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  const auto rows = NSMutableArray::array();
  rows.addObject(PSSpecifier::emptyGroupSpecifier());
  rows.addObject(link("Sounds"_ns, "PrefsSoundsController", row_icon(RowIcon::Sounds)));
  rows.addObject(link("Wallpaper"_ns, "PrefsWallpaperController", row_icon(RowIcon::Wallpaper)));
  const auto gestures = row(self, "Gestures"_ns, nullptr, row_icon(RowIcon::Gestures));
  gestures.set_action("showGestures"_sel);
  rows.addObject(gestures);
  const auto entries = read_loader_entries();
  if (!entries.empty()) rows.addObject(PSSpecifier::emptyGroupSpecifier());
  for (const LoaderEntry& entry : entries)
    rows.addObject(entry_row(entry));
  rows.addObject(PSSpecifier::emptyGroupSpecifier());
  rows.addObject(link("Music"_ns, "PrefsMusicController", row_icon(RowIcon::Music)));
  rows.addObject(PSSpecifier::emptyGroupSpecifier());
  rows.addObject(link("About"_ns, "PrefsAboutController", row_icon(RowIcon::About)));
  self.setSpecifiers(rows);
  return rows;
}

void RootPage::show_gestures() {
  load_device_image(process::kGestureService);
  const auto page = LAListenerListViewController::alloc().init();
  self.navigationController().pushViewController(page, YES);
  page.release();
}

void export_root_page() {
  objc::ClassBuilder("PrefsListController", "PSListController")
      .state<RootPage>()
      .method<&RootPage::init>("init")
      .method<&RootPage::specifiers>("specifiers")
      .method<&RootPage::show_gestures>("showGestures")
      .finish();
}

}  // namespace host::settings
