#include "host/springboard/system/spring_board_application.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/surfaces/control_centre.h"
#include "host/springboard/surfaces/notification_centre.h"
#include "host/springboard/system/ui_controller.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {

void SpringBoardApplication::application_did_finish_launching(objc::Object application) {
  super<>("applicationDidFinishLaunching:"_sel, application);
  const SBUIController user_interface = SBUIController::sharedInstance();
  user_interface.window().makeKeyAndVisible();
  objc::state_of<UserInterfaceController>(user_interface).watch_processes();
  status_bar_ = std::make_unique<StatusBar>(*configuration().wall_clock);
  edge_pulls_ = std::make_unique<EdgePulls>(
      notification_centre(),
      objc::state_of<ControlCentre>(SBControlCenterController::sharedInstance()));
}

void export_spring_board_application() {
  objc::ClassBuilder("SpringBoard", "UIApplication")
      .state<SpringBoardApplication>()
      .method<&SpringBoardApplication::application_did_finish_launching>(
          "applicationDidFinishLaunching:")
      .finish();
}

}  // namespace host::springboard
