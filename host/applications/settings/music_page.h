#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListController.h"

namespace host::settings {

struct PrefsMusicController
    : objc::Bound<PrefsMusicController, "PrefsMusicController", PSListController> {};

/// How the phone plays music.
class MusicPage : public objc::Implementation<MusicPage, PrefsMusicController> {
 public:
  using Implementation::Implementation;

  NSArray specifiers();
  objc::Object repeat(PSSpecifier specifier);
  void set_repeat(objc::Object value, PSSpecifier specifier);
  objc::Object shuffles(PSSpecifier specifier);
  void set_shuffles(objc::Object value, PSSpecifier specifier);
  objc::Object replay_gain(PSSpecifier specifier);
  void set_replay_gain(objc::Object value, PSSpecifier specifier);
  objc::Object announces_songs(PSSpecifier specifier);
  void set_announces_songs(objc::Object value, PSSpecifier specifier);
};

void export_music_page();

}  // namespace host::settings
