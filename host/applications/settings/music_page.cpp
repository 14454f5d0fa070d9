#include "host/applications/settings/music_page.h"

#include "host/applications/program/player_remote.h"
#include "host/media_player/music_choices.h"
#include "platform/Foundation/NSValue.h"
#include "platform/Preferences/PSListItemsController.h"

namespace host::settings {
namespace {

using media_player::MusicChoices;

PSSpecifier group(NSString footer) {
  const auto made = PSSpecifier::emptyGroupSpecifier();
  made.setProperty(footer, "footerText"_ns);
  return made;
}

NSNumber number(media::ReplayGain gain) {
  return NSNumber::numberWithInteger(static_cast<NSInteger>(gain));
}

void choose(const MusicChoices& choices) {
  media_player::write_music_choices(choices);
  application::PlayerRemote::shared().read_choices();
}

}  // namespace

NSArray MusicPage::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  using media::ReplayGain;
  const auto gain = PSSpecifier::preferenceSpecifierNamed(
      "ReplayGain"_ns, self, "setReplayGain:specifier:"_sel, "replayGain:"_sel,
      objc_getClass("PSListItemsController"), PSTableCell::cellTypeFromString("PSLinkListCell"_ns),
      nullptr);
  gain.setValues(NSArray::arrayWithObjects(number(ReplayGain::off), number(ReplayGain::track),
                                           number(ReplayGain::album)),
                 NSArray::arrayWithObjects("Off"_ns, "Song"_ns, "Album"_ns));
  const auto announces = PSSpecifier::preferenceSpecifierNamed(
      "Announce Songs"_ns, self, "setAnnouncesSongs:specifier:"_sel, "announcesSongs:"_sel, nullptr,
      PSTableCell::cellTypeFromString("PSSwitchCell"_ns), nullptr);
  const auto rows = NSArray::arrayWithObjects(
      group("Plays songs, or whole albums, as loud as each other, where their files say how loud "
            "they are."_ns),
      gain,
      group("The desktop shows a notification when a new song begins and this window is not in "
            "front."_ns),
      announces);
  self.setSpecifiers(rows);
  return rows;
}

objc::Object MusicPage::replay_gain(PSSpecifier) {
  return number(media_player::read_music_choices().replay_gain);
}

void MusicPage::set_replay_gain(objc::Object value, PSSpecifier) {
  MusicChoices choices = media_player::read_music_choices();
  choices.replay_gain = static_cast<media::ReplayGain>(objc::cast<NSNumber>(value).integerValue());
  choose(choices);
}

objc::Object MusicPage::announces_songs(PSSpecifier) {
  return NSNumber::numberWithBool(media_player::read_music_choices().announces_songs);
}

void MusicPage::set_announces_songs(objc::Object value, PSSpecifier) {
  MusicChoices choices = media_player::read_music_choices();
  choices.announces_songs = objc::cast<NSNumber>(value).boolValue();
  choose(choices);
}

void export_music_page() {
  objc::ClassBuilder("PrefsMusicController", "PSListController")
      .state<MusicPage>()
      .method<&MusicPage::specifiers>("specifiers")
      .method<&MusicPage::replay_gain>("replayGain:")
      .method<&MusicPage::set_replay_gain>("setReplayGain:specifier:")
      .method<&MusicPage::announces_songs>("announcesSongs:")
      .method<&MusicPage::set_announces_songs>("setAnnouncesSongs:specifier:")
      .finish();
}

}  // namespace host::settings
