#pragma once

#include <memory>

#include "host/springboard/status_bar/status_bar.h"
#include "host/springboard/surfaces/edge_pulls.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SpringBoard.h"

namespace host::springboard {

/// The application object of the home screen's process.
class SpringBoardApplication : public objc::Implementation<SpringBoardApplication, SpringBoard> {
 public:
  using Implementation::Implementation;

  /// Puts the home screen and the status bar on the screen.
  void application_did_finish_launching(objc::Object application);
  StatusBar* status_bar() { return status_bar_.get(); }

 private:
  std::unique_ptr<EdgePulls> edge_pulls_;
  std::unique_ptr<StatusBar> status_bar_;
};

/// The status bar lies on the lock screen while the phone is locked.
void set_status_bar_locked(bool locked);
/// It is dark over an application with a light screen. Gives what it was.
bool set_status_bar_dark(bool dark);

void export_spring_board_application();

}  // namespace host::springboard
