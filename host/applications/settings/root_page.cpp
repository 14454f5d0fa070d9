#include "host/applications/settings/root_page.h"

#include "host/activator/page/page_look.h"
#include "host/activator/strings.h"
#include "host/applications/settings/loader_entries.h"
#include "host/applications/settings/row_icons.h"

namespace host::settings {
namespace {

PSSpecifier link(NSString name, const char* detail, UIImage icon) {
  const auto made = PSSpecifier::preferenceSpecifierNamed(
      name, nil, nullptr, nullptr, objc_getClass(detail),
      PSTableCell::cellTypeFromString("PSLinkCell"_ns), nullptr);
  made.setProperty(icon, "iconImage"_ns);
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
  rows.addObject(link("Gestures"_ns, "LAListenerListViewController", row_icon(RowIcon::Gestures)));
  const auto entries = read_loader_entries();
  if (!entries.empty()) rows.addObject(PSSpecifier::emptyGroupSpecifier());
  for (const LoaderEntry& entry : entries)
    rows.addObject(
        link(activator::to_ns(entry.label), entry.detail.c_str(), activator::row_icon(entry.icon)));
  rows.addObject(PSSpecifier::emptyGroupSpecifier());
  rows.addObject(link("About"_ns, "PrefsAboutController", row_icon(RowIcon::About)));
  self.setSpecifiers(rows);
  return rows;
}

void export_root_page() {
  objc::ClassBuilder("PrefsListController", "PSListController")
      .state<RootPage>()
      .method<&RootPage::init>("init")
      .method<&RootPage::specifiers>("specifiers")
      .finish();
}

}  // namespace host::settings
