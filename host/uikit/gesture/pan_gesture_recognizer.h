#pragma once

#include "host/uikit/gesture/gesture_recognizer.h"
#include "host/uikit/touch/velocity_tracker.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"

namespace host::uikit {

/// How far fingers travel before a pan begins, in points. After that every movement counts, whether
/// the fingers lift one point later or a hundred. A finger that lifts earlier has not panned at
/// all.
inline constexpr double kPanThreshold = 10;

/// Begins when its fingers have travelled, and then follows them. The translation counts from where
/// they landed, so it includes the way to the threshold.
class PanGestureRecognizer
    : public objc::Implementation<PanGestureRecognizer, UIPanGestureRecognizer> {
 public:
  explicit PanGestureRecognizer(UIPanGestureRecognizer owner) : Implementation(owner) {}

  NSUInteger minimum_number_of_touches() const { return minimum_touches_; }
  void set_minimum_number_of_touches(NSUInteger count) { minimum_touches_ = count; }
  NSUInteger maximum_number_of_touches() const { return maximum_touches_; }
  void set_maximum_number_of_touches(NSUInteger count) { maximum_touches_ = count; }
  CGPoint translation_in_view(UIView view) const;
  void set_translation(CGPoint translation, UIView view);
  CGPoint velocity_in_view(UIView view) const;

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
  void reset();

 private:
  struct Fingers {
    CGPoint middle;
    NSUInteger count = 0;
  };

  Fingers fingers_down() const;
  void continue_from(CGPoint middle, double time);
  bool is_under_way() const;

  NSUInteger minimum_touches_ = 1;
  NSUInteger maximum_touches_ = ~NSUInteger{0};
  // In screen coordinates.
  CGPoint start_;
  CGPoint latest_;
  double latest_time_ = 0;
  bool has_start_ = false;
  VelocityTracker velocity_;
};

void export_pan_gesture_recognizer();

}  // namespace host::uikit
