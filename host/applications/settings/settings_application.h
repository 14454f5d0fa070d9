#pragma once

#include "host/applications/program/program.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::settings {

struct PreferencesAppController
    : objc::Bound<PreferencesAppController, "PreferencesAppController", UIApplication> {};

/// The application object of Settings: a stack of pages with the root list at the bottom.
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
/// Detects the desktop, if there is one, for opening addresses in its programs.
void prepare_settings(bool is_stepped);

inline constexpr std::string_view kImages[] = {process::kUIKit, process::kPreferences};
inline constexpr application::Program kProgram{
    .bundle = "com.apple.Preferences",
    .folder = "/Applications/Settings.app",
    .name = "Preferences",
    .images = kImages,
    .application_class = "PreferencesAppController",
    .export_classes = &export_settings_classes,
    .prepare = &prepare_settings,
};

}  // namespace host::settings
