#include "host/springboard/system/ui_controller.h"

#include "host/springboard/application/application.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/home/icon_controller.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/processes/running_processes.h"
#include "host/springboard/status_bar/status_bar.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/switcher/app_switcher.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/switcher/screen_picture.h"
#include "host/springboard/view/icon_view.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/SpringBoard/SBIconViewMap.h"

namespace host::springboard {
namespace {

/// The frame of the application's icon on the screen, or the middle of the screen when the icon is
/// not visible.
CGRect icon_on_screen(SBIcon icon, UIWindow window) {
  const SBIconView view = SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon);
  const CGRect screen = window.bounds();
  if (view.window() == window) {
    const CGRect image = objc::state_of<IconView>(view).image_frame();
    const CGRect seen = view.convertRectToView(image, window);
    if (screen.contains(seen.centre())) return seen;
  }
  return {screen.centre(), {1, 1}};
}

}  // namespace

UIWindow UserInterfaceController::window() const {
  return icon_controller().home().window();
}

BOOL UserInterfaceController::clicked_menu_button() {
  uikit::cancel_every_touch();
  const SBIconController icons = SBIconController::sharedInstance();
  if (close_top_surface()) return YES;
  if (is_locked()) return NO;
  if (app_switcher().is_showing()) {
    app_switcher().dismiss();
  } else if (shows_application()) {
    recent_applications().keep_picture(recent_applications().front(), picture_of_front());
    leave_application();
  } else if (icons.isEditing()) {
    icons.setIsEditing(NO);
  } else if (icons.hasOpenFolder()) {
    icons.closeFolderAnimated(YES);
  } else if (icons.currentIconListIndex() != 0) {
    icons.scrollToIconListAtIndex(0, YES);
  } else {
    return NO;
  }
  return YES;
}

BOOL UserInterfaceController::handle_menu_double_tap() {
  if (is_locked()) return NO;
  uikit::cancel_every_touch();
  while (close_top_surface()) {
  }
  if (app_switcher().is_showing()) {
    app_switcher().dismiss();
  } else {
    app_switcher().show();
  }
  return YES;
}

BOOL UserInterfaceController::is_app_switcher_showing() const {
  return app_switcher().is_showing() ? YES : NO;
}

void UserInterfaceController::leave_application() {
  recent_applications().went_home();
  running_processes().bring_to_front({});
  set_status_bar_dark(false);
  // The user may have chosen another wallpaper in Settings.
  objc::state_of<IconController>(SBIconController::sharedInstance()).home().show_wallpaper();
  if (launch_screen_) launch_screen_->close();
}

void UserInterfaceController::activate_application_animated(SBApplication application) {
  if (!application) return;
  uikit::cancel_every_touch();
  const SBIconController icons = SBIconController::sharedInstance();
  icons.setIsEditing(NO);
  const SBIcon icon =
      icons.model().expectedIconForDisplayIdentifier(application.bundleIdentifier());
  const std::string bundle = to_string(application.bundleIdentifier());
  recent_applications().came_to_front(bundle);
  if (!launch_screen_) watch_processes();
  const auto process =
      running_processes().open(bundle, objc::state_of<Application>(application).program());
  launch_screen_->open(application, icon.generateIconImage(SBIconImageFormatHomeScreen),
                       icon_on_screen(icon, self.window()), process);
  running_processes().bring_to_front(process ? bundle : std::string());
  set_status_bar_dark(static_cast<bool>(process));
}

void UserInterfaceController::watch_processes() {
  launch_screen_ = std::make_unique<LaunchScreen>(self.window());
  RunningProcesses& processes = running_processes();
  processes.on_frame([this](const std::string& bundle) {
    if (recent_applications().front() == bundle) launch_screen_->frame_came();
  });
  processes.on_gone([this](const std::string& bundle) { application_gone(bundle); });
  recent_applications().on_leave([this] { leave_application(); });
  recent_applications().on_close(
      [](const std::string& bundle) { running_processes().close(bundle); });
}

void UserInterfaceController::application_gone(const std::string& bundle) {
  if (recent_applications().front() == bundle) {
    recent_applications().went_home();
    set_status_bar_dark(false);
    launch_screen_->fade();
  }
  recent_applications().forget(bundle);
}

LaunchScreen::Process UserInterfaceController::process_in_front() const {
  return shows_application() ? running_processes().find(recent_applications().front()) : nullptr;
}

void export_ui_controller() {
  objc::ClassBuilder("SBUIController", "NSObject")
      .state<UserInterfaceController>()
      .class_method<&shared_instance<SBUIController>>("sharedInstance")
      .method<&UserInterfaceController::window>("window")
      .method<&UserInterfaceController::clicked_menu_button>("clickedMenuButton")
      .method<&UserInterfaceController::handle_menu_double_tap>("handleMenuDoubleTap")
      .method<&UserInterfaceController::is_app_switcher_showing>("isAppSwitcherShowing")
      .method<&UserInterfaceController::activate_application_animated>(
          "activateApplicationAnimated:")
      .finish();
}

}  // namespace host::springboard
