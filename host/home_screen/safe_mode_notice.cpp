#include "host/home_screen/safe_mode_notice.h"

#include <cstdlib>

#include "host/foundation/loader.h"
#include "host/home_screen/launch.h"
#include "host/launcher/control_socket.h"
#include "host/runtime/log.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIAlertView.h"

namespace host::launcher {
namespace {

struct SafeModeNotice : objc::Bound<SafeModeNotice, "SafeModeNotice", NSObject> {};

void clicked(SafeModeNotice, UIAlertView alert, NSInteger button) {
  if (button == alert.cancelButtonIndex()) return;
  const char* socket = std::getenv(kControlSocketVariable);
  if (socket) ask_supervisor(socket, {ControlRequest::Kind::Kill, {}, kHomeScreen});
}

}  // namespace

void show_safe_mode_notice() {
  spdlog::warn(
      "safe mode: the phone runs without extensions. Remove or replace the one that is at fault in "
      "{}, then tap Restart or start the phone again",
      foundation::libraries_folder().string());
  objc::ClassBuilder("SafeModeNotice", "NSObject")
      .method<&clicked>("alertView:clickedButtonAtIndex:")
      .finish();
  const auto notice =
      UIAlertView::alloc()
          .initWithTitle(
              "Safe Mode"_ns,
              "The home screen kept ending, so it has started without extensions. Remove "
              "or replace the one that is at fault; the log may name it."_ns,
              SafeModeNotice::alloc().init(), "Continue"_ns)
          .autorelease();
  notice.addButtonWithTitle("Restart"_ns);
  notice.show();
}

}  // namespace host::launcher
