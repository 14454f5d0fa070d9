#include "host/applications/settings/settings_application.h"

#include "host/applications/program/player_remote.h"
#include "host/applications/settings/about_page.h"
#include "host/applications/settings/music_page.h"
#include "host/applications/settings/root_page.h"
#include "host/applications/settings/sounds_page.h"
#include "host/applications/settings/volume_cell.h"
#include "host/applications/settings/wallpaper_page.h"
#include "host/social/delivery/configuration.h"
#include "host/springboard/parts/slider.h"

namespace host::settings {

using application::PlayerRemote;

SettingsApplication::~SettingsApplication() {
  PlayerRemote::shared().on_change = {};
  if (window_) window_->setHidden(YES);
}

void SettingsApplication::did_finish_launching(objc::Object) {
  window_ =
      objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame(UIScreen::mainScreen().bounds()));
  window_->setBackgroundColor(UIColor::whiteColor());
  const auto root = PrefsListController::alloc().init();
  navigation_ = objc::Ref<UINavigationController>::adopt(
      UINavigationController::alloc().initWithRootViewController(root));
  root.release();
  window_->setRootViewController(navigation_.get());
  window_->makeKeyAndVisible();
  // The volume may be changed by its buttons while the page is open.
  PlayerRemote::shared().on_change = [this] {
    const UIViewController top = navigation_->topViewController();
    if (top.isKindOfClass(PrefsSoundsController::cls())) objc::cast<PSListController>(top).reload();
  };
}

void export_settings_classes() {
  if (PreferencesAppController::cls()) return;
  springboard::export_slider();
  export_root_page();
  export_about_page();
  export_volume_cell();
  export_sounds_page();
  export_music_page();
  export_wallpaper_page();
  objc::ClassBuilder("PreferencesAppController", "UIApplication")
      .state<SettingsApplication>()
      .method<&SettingsApplication::did_finish_launching>("applicationDidFinishLaunching:")
      .method<&SettingsApplication::window>("settingsWindow")
      .method<&SettingsApplication::navigation>("navigation")
      .finish();
}

void prepare_settings(bool is_stepped) {
  social::Configuration ways_out;
  ways_out.desktop = is_stepped ? social::Desktop::Absent : social::desktop_of_environment();
  ways_out.share_target = social::default_share_target_file();
  social::configure(ways_out);
}

}  // namespace host::settings
