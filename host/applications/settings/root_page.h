#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListController.h"

namespace host::settings {

struct PrefsListController
    : objc::Bound<PrefsListController, "PrefsListController", PSListController> {};

/// The first page: what belongs to the phone, what extensions have added, and what it is.
class RootPage : public objc::Implementation<RootPage, PrefsListController> {
 public:
  using Implementation::Implementation;

  PrefsListController init();
  NSArray specifiers();
  /// The gesture service's own page, which comes into the process with the service's library.
  void show_gestures();
};

void export_root_page();

}  // namespace host::settings
