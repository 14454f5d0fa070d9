#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListController.h"

namespace host::settings {

struct PrefsAboutController
    : objc::Bound<PrefsAboutController, "PrefsAboutController", PSListController> {};

/// Shows the phone's model and system, and the number of its songs.
class AboutPage : public objc::Implementation<AboutPage, PrefsAboutController> {
 public:
  using Implementation::Implementation;

  NSArray specifiers();
  objc::Object value(PSSpecifier specifier);
};

void export_about_page();

}  // namespace host::settings
