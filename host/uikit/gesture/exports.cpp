#include "host/uikit/gesture/exports.h"

#include "host/uikit/gesture/gesture_recognizer.h"
#include "host/uikit/gesture/long_press_gesture_recognizer.h"
#include "host/uikit/gesture/pan_gesture_recognizer.h"
#include "host/uikit/gesture/tap_gesture_recognizer.h"

namespace host::uikit {

void export_gesture() {
  if (UIGestureRecognizer::cls()) return;
  export_gesture_recognizer();
  export_tap_gesture_recognizer();
  export_pan_gesture_recognizer();
  export_long_press_gesture_recognizer();
}

}  // namespace host::uikit
