#pragma once

#include "host/runtime/countdown.h"
#include "host/uikit/gesture/gesture_recognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::uikit {

/// Waits for its number of taps: each short, all in one place, with the required number of fingers.
class TapGestureRecognizer
    : public objc::Implementation<TapGestureRecognizer, UITapGestureRecognizer> {
 public:
  explicit TapGestureRecognizer(UITapGestureRecognizer owner) : Implementation(owner) {}

  NSUInteger number_of_taps_required() const { return taps_required_; }
  void set_number_of_taps_required(NSUInteger count) { taps_required_ = count; }
  NSUInteger number_of_touches_required() const { return touches_required_; }
  void set_number_of_touches_required(NSUInteger count) { touches_required_ = count; }

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
  void reset();
  BOOL can_prevent(UIGestureRecognizer other);

 private:
  void fail() { self.setState(UIGestureRecognizerStateFailed); }
  bool is_far_from_first_tap(CGPoint point) const;
  NSUInteger fingers_down() const;

  NSUInteger taps_required_ = 1;
  NSUInteger touches_required_ = 1;
  NSUInteger taps_ = 0;
  NSUInteger most_fingers_ = 0;
  CGPoint first_tap_;
  Countdown limit_;
};

void export_tap_gesture_recognizer();

}  // namespace host::uikit
