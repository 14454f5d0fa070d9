#pragma once

#include "host/runtime/countdown.h"
#include "host/uikit/gesture/gesture_recognizer.h"
#include "platform/UIKit/UILongPressGestureRecognizer.h"

namespace host::uikit {

/// Begins when the fingers have rested long enough, and then follows them.
class LongPressGestureRecognizer
    : public objc::Implementation<LongPressGestureRecognizer, UILongPressGestureRecognizer> {
 public:
  explicit LongPressGestureRecognizer(UILongPressGestureRecognizer owner) : Implementation(owner) {}

  NSUInteger number_of_touches_required() const { return touches_required_; }
  void set_number_of_touches_required(NSUInteger count) { touches_required_ = count; }
  double minimum_press_duration() const { return minimum_press_duration_; }
  void set_minimum_press_duration(double seconds) { minimum_press_duration_ = seconds; }
  CGFloat allowable_movement() const { return allowable_movement_; }
  void set_allowable_movement(CGFloat points) { allowable_movement_ = points; }

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
  void reset();

 private:
  NSUInteger touches_required_ = 1;
  double minimum_press_duration_ = 0.5;
  CGFloat allowable_movement_ = 10;
  Countdown press_;
};

void export_long_press_gesture_recognizer();

}  // namespace host::uikit
