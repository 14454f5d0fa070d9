#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// The event of touches: one object for the process that always shows the fingers on the screen,
/// as the platform's does.
class Event : public objc::Implementation<Event, UIEvent> {
 public:
  explicit Event(UIEvent owner) : Implementation(owner) {}

  UIEventType type() const { return UIEventTypeTouches; }
  double timestamp() const { return timestamp_; }
  NSSet all_touches() const;
  NSSet touches_for_window(UIWindow window) const;
  NSSet touches_for_view(UIView view) const;
  NSSet touches_for_gesture_recognizer(UIGestureRecognizer recognizer) const;

  /// The touch that this sending of the event is about.
  UITouch changed_touch() const { return changed_touch_; }
  void is_about(UITouch touch, double timestamp) {
    changed_touch_ = touch;
    timestamp_ = timestamp;
  }

 private:
  UITouch changed_touch_;
  double timestamp_ = 0;
};

UIEvent touches_event();

void export_event();

}  // namespace host::uikit
