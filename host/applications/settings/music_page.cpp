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

template <class Choice>
NSNumber number(Choice choice) {
  return NSNumber::numberWithInteger(static_cast<NSInteger>(choice));
}

template <class Choice>
Choice choice_in(objc::Object value) {
  return static_cast<Choice>(objc::cast<NSNumber>(value).integerValue());
}

/// Keeps one of the choices and tells the process that plays.
template <class Choice>
void choose(Choice MusicChoices::*which, Choice value) {
  MusicChoices choices = media_player::read_music_choices();
  choices.*which = value;
  media_player::write_music_choices(choices);
  application::PlayerRemote::shared().read_choices();
}

/// How a row is named, and the page's methods for its value.
struct Row {
  NSString name;
  objc::Sel set;
  objc::Sel get;
};

PSSpecifier list_row(PrefsMusicController page, const Row& row, NSArray values, NSArray titles) {
  const auto made = PSSpecifier::preferenceSpecifierNamed(
      row.name, page, row.set, row.get, objc_getClass("PSListItemsController"),
      PSTableCell::cellTypeFromString("PSLinkListCell"_ns), nullptr);
  made.setValues(values, titles);
  return made;
}

PSSpecifier switch_row(PrefsMusicController page, const Row& row) {
  return PSSpecifier::preferenceSpecifierNamed(row.name, page, row.set, row.get, nullptr,
                                               PSTableCell::cellTypeFromString("PSSwitchCell"_ns),
                                               nullptr);
}

}  // namespace

NSArray MusicPage::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  using media::Repeat;
  using media::ReplayGain;
  const auto rows = NSArray::arrayWithObjects(
      PSSpecifier::emptyGroupSpecifier(),
      list_row(
          self, {"Repeat"_ns, "setRepeat:specifier:"_sel, "repeat:"_sel},
          NSArray::arrayWithObjects(number(Repeat::none), number(Repeat::all), number(Repeat::one)),
          NSArray::arrayWithObjects("Off"_ns, "All"_ns, "One"_ns)),
      switch_row(self, {"Shuffle"_ns, "setShuffles:specifier:"_sel, "shuffles:"_sel}),
      group("Plays songs, or whole albums, as loud as each other, where their files say how loud "
            "they are."_ns),
      list_row(self, {"ReplayGain"_ns, "setReplayGain:specifier:"_sel, "replayGain:"_sel},
               NSArray::arrayWithObjects(number(ReplayGain::off), number(ReplayGain::track),
                                         number(ReplayGain::album)),
               NSArray::arrayWithObjects("Off"_ns, "Song"_ns, "Album"_ns)),
      group("The desktop shows a notification when a new song begins and this window is not in "
            "front."_ns),
      switch_row(self,
                 {"Announce Songs"_ns, "setAnnouncesSongs:specifier:"_sel, "announcesSongs:"_sel}));
  self.setSpecifiers(rows);
  return rows;
}

objc::Object MusicPage::repeat(PSSpecifier) {
  return number(media_player::read_music_choices().repeat);
}

void MusicPage::set_repeat(objc::Object value, PSSpecifier) {
  choose(&MusicChoices::repeat, choice_in<media::Repeat>(value));
}

objc::Object MusicPage::shuffles(PSSpecifier) {
  return NSNumber::numberWithBool(media_player::read_music_choices().shuffles);
}

void MusicPage::set_shuffles(objc::Object value, PSSpecifier) {
  choose(&MusicChoices::shuffles, choice_in<bool>(value));
}

objc::Object MusicPage::replay_gain(PSSpecifier) {
  return number(media_player::read_music_choices().replay_gain);
}

void MusicPage::set_replay_gain(objc::Object value, PSSpecifier) {
  choose(&MusicChoices::replay_gain, choice_in<media::ReplayGain>(value));
}

objc::Object MusicPage::announces_songs(PSSpecifier) {
  return NSNumber::numberWithBool(media_player::read_music_choices().announces_songs);
}

void MusicPage::set_announces_songs(objc::Object value, PSSpecifier) {
  choose(&MusicChoices::announces_songs, choice_in<bool>(value));
}

void export_music_page() {
  objc::ClassBuilder("PrefsMusicController", "PSListController")
      .state<MusicPage>()
      .method<&MusicPage::specifiers>("specifiers")
      .method<&MusicPage::repeat>("repeat:")
      .method<&MusicPage::set_repeat>("setRepeat:specifier:")
      .method<&MusicPage::shuffles>("shuffles:")
      .method<&MusicPage::set_shuffles>("setShuffles:specifier:")
      .method<&MusicPage::replay_gain>("replayGain:")
      .method<&MusicPage::set_replay_gain>("setReplayGain:specifier:")
      .method<&MusicPage::announces_songs>("announcesSongs:")
      .method<&MusicPage::set_announces_songs>("setAnnouncesSongs:specifier:")
      .finish();
}

}  // namespace host::settings
