#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListController.h"

namespace host::settings {

struct PrefsListController
    : objc::Bound<PrefsListController, "PrefsListController", PSListController> {};

/// The first page: the phone's own pages, those of extensions, and About.
class RootPage : public objc::Implementation<RootPage, PrefsListController> {
 public:
  using Implementation::Implementation;

  PrefsListController init();
  NSArray specifiers();
  /// Shows the gesture service's own page, whose class is loaded with the service's library.
  void show_gestures();
};

void export_root_page();

}  // namespace host::settings
