#pragma once

#include <memory>

#include "host/springboard/system/launch_screen.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {

/// The Home button, and which application is in front.
class UserInterfaceController
    : public objc::Implementation<UserInterfaceController, SBUIController> {
 public:
  using Implementation::Implementation;

  UIWindow window() const;
  /// Leaves one thing after the other: the switcher, the application, the editing mode, the open
  /// folder, at last a page other than the first.
  BOOL clicked_menu_button();
  /// Calls up the switcher, or sends it away; not while the phone is locked.
  BOOL handle_menu_double_tap();
  BOOL is_app_switcher_showing() const;
  /// Back to the home screen.
  void leave_application();
  bool shows_application() const { return launch_screen_ && launch_screen_->is_open(); }
  void activate_application_animated(SBApplication application);
  /// Shows what applications draw, and notices when they are gone. Once, at the launch.
  void watch_processes();
  /// The application that the user sees; null on the home screen, and for one without a program.
  LaunchScreen::Process process_in_front() const;

 private:
  void application_gone(const std::string& bundle);

  std::unique_ptr<LaunchScreen> launch_screen_;
};

void export_ui_controller();

}  // namespace host::springboard
