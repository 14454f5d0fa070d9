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

 private:
  std::unique_ptr<EdgePulls> edge_pulls_;
  std::unique_ptr<StatusBar> status_bar_;
};

void export_spring_board_application();

}  // namespace host::springboard
