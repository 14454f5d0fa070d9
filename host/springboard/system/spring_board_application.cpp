#include "host/springboard/system/spring_board_application.h"

#include "host/springboard/configuration.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

const FixedWallClock fixed_clock;

}  // namespace

void SpringBoardApplication::application_did_finish_launching(objc::Object application) {
  super<>("applicationDidFinishLaunching:"_sel, application);
  SBUIController::sharedInstance().window().makeKeyAndVisible();
  const WallClock* clock = configuration().wall_clock;
  status_bar_ = std::make_unique<StatusBar>(clock ? *clock : fixed_clock);
}

void export_spring_board_application() {
  objc::ClassBuilder("SpringBoard", "UIApplication")
      .state<SpringBoardApplication>()
      .method<&SpringBoardApplication::application_did_finish_launching>(
          "applicationDidFinishLaunching:")
      .finish();
}

}  // namespace host::springboard
