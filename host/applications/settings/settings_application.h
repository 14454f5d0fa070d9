#pragma once

#include "host/applications/program/program.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::settings {

struct PreferencesAppController
    : objc::Bound<PreferencesAppController, "PreferencesAppController", UIApplication> {};

/// The application object of Settings: a stack of pages that begins with the root list.
class SettingsApplication
    : public objc::Implementation<SettingsApplication, PreferencesAppController> {
 public:
  using Implementation::Implementation;
  ~SettingsApplication();

  void did_finish_launching(objc::Object application);
  UIWindow window() const { return window_.get(); }
  UINavigationController navigation() const { return navigation_.get(); }

 private:
  objc::Ref<UIWindow> window_;
  objc::Ref<UINavigationController> navigation_;
};

void export_settings_classes();
/// Opens the library to count its songs, and, where the phone stands on a desktop, finds the way
/// out to its programs.
void prepare_settings(bool is_stepped);

inline constexpr application::Program kProgram{"com.apple.Preferences", "Preferences",
                                               "PreferencesAppController", &export_settings_classes,
                                               &prepare_settings};

}  // namespace host::settings
