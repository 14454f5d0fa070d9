#pragma once

#include <memory>

#include "host/springboard/system/launch_screen.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {

/// Handles the Home button, and knows which application is in front.
class UserInterfaceController
    : public objc::Implementation<UserInterfaceController, SBUIController> {
 public:
  using Implementation::Implementation;

  UIWindow window() const;
  /// Leaves one thing per click, in this order: the switcher, the application, editing mode, the
  /// open folder, and a page other than the first.
  BOOL clicked_menu_button();
  /// Shows or dismisses the switcher, unless the phone is locked.
  BOOL handle_menu_double_tap();
  BOOL is_app_switcher_showing() const;
  /// Returns to the home screen.
  void leave_application();
  bool shows_application() const { return launch_screen_ && launch_screen_->is_open(); }
  void activate_application_animated(SBApplication application);
  /// Starts showing what applications draw and noticing when they end. Called once, at launch.
  void watch_processes();
  /// The process of the application that the user sees; null on the home screen, and for an
  /// application without a program.
  LaunchScreen::Process process_in_front() const;

 private:
  void application_gone(const std::string& bundle);

  std::unique_ptr<LaunchScreen> launch_screen_;
};

void export_ui_controller();

}  // namespace host::springboard
