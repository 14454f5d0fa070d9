#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// The touch event: one object per process that always reflects the fingers on the screen, as on
/// the platform.
class Event : public objc::Implementation<Event, UIEvent> {
 public:
  explicit Event(UIEvent owner) : Implementation(owner) {}

  UIEventType type() const { return UIEventTypeTouches; }
  double timestamp() const { return timestamp_; }
  NSSet all_touches() const;
  NSSet touches_for_window(UIWindow window) const;
  NSSet touches_for_view(UIView view) const;
  NSSet touches_for_gesture_recognizer(UIGestureRecognizer recognizer) const;

  /// The touch for which the event is being sent.
  UITouch changed_touch() const { return changed_touch_; }
  void set_changed_touch(UITouch touch, double timestamp) {
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
