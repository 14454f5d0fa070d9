#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListController.h"

namespace host::settings {

struct PrefsSoundsController
    : objc::Bound<PrefsSoundsController, "PrefsSoundsController", PSListController> {};

/// Sets the phone's volume.
class SoundsPage : public objc::Implementation<SoundsPage, PrefsSoundsController> {
 public:
  using Implementation::Implementation;

  void view_did_load();
  NSArray specifiers();
  objc::Object volume(PSSpecifier specifier);
  void set_volume(objc::Object volume, PSSpecifier specifier);
};

void export_sounds_page();

}  // namespace host::settings
