#include "host/applications/settings/sounds_page.h"

#include "host/applications/program/player_remote.h"
#include "platform/Foundation/NSValue.h"

namespace host::settings {

using application::PlayerRemote;

NSArray SoundsPage::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  const auto group = PSSpecifier::groupSpecifierWithName("Music"_ns);
  group.setProperty("The volume buttons change this, too."_ns, "footerText"_ns);
  const auto row = PSSpecifier::preferenceSpecifierNamed(
      nil, self, "setVolume:specifier:"_sel, "volumeOf:"_sel, nullptr,
      PSTableCell::cellTypeFromString("PSSliderCell"_ns), nullptr);
  row.setProperty(objc::Object(objc_getClass("PrefsVolumeCell")), "cellClass"_ns);
  const auto rows = NSArray::arrayWithObjects(group, row);
  self.setSpecifiers(rows);
  return rows;
}

void SoundsPage::view_did_load() {
  super<>("viewDidLoad"_sel);
  // The slider must follow the finger from the first point.
  self.table().setDelaysContentTouches(NO);
}

objc::Object SoundsPage::volume(PSSpecifier) {
  return NSNumber::numberWithDouble(PlayerRemote::shared().playback().volume);
}

void SoundsPage::set_volume(objc::Object volume, PSSpecifier) {
  PlayerRemote::shared().set_volume(objc::cast<NSNumber>(volume).doubleValue());
}

void export_sounds_page() {
  objc::ClassBuilder("PrefsSoundsController", "PSListController")
      .state<SoundsPage>()
      .method<&SoundsPage::view_did_load>("viewDidLoad")
      .method<&SoundsPage::specifiers>("specifiers")
      .method<&SoundsPage::volume>("volumeOf:")
      .method<&SoundsPage::set_volume>("setVolume:specifier:")
      .finish();
}

}  // namespace host::settings
