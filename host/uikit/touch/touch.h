#pragma once

#include <algorithm>
#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// One finger from landing to lifting. It keeps the view it landed on until its end, and records
/// what that view has been told: recognisers may delay or cancel the delivery.
class Touch : public objc::Implementation<Touch, UITouch> {
 public:
  explicit Touch(UITouch owner) : Implementation(owner) {}

  double timestamp() const { return timestamp_; }
  UITouchPhase phase() const { return told_phase_ ? *told_phase_ : phase_; }
  NSUInteger tap_count() const { return tap_count_; }
  UIWindow window() const { return window_.get(); }
  UIView view() const { return view_.get(); }
  NSArray gesture_recognizers() const;
  CGPoint location_in_view(UIView view) const;
  CGPoint previous_location_in_view(UIView view) const;

  // For touch input and recognisers; points are in screen coordinates.
  void land(UIWindow window, UIView view, CGPoint point, double timestamp, NSUInteger tap_count);
  void move(CGPoint point, double timestamp);
  void lift(UITouchPhase phase, double timestamp);
  void stand_still() { phase_ = UITouchPhaseStationary; }
  CGPoint screen_location() const { return location_; }
  CGPoint landing_point() const { return landing_point_; }
  bool is_down() const { return phase_ != UITouchPhaseEnded && phase_ != UITouchPhaseCancelled; }

  UITouch handle() const { return self; }
  std::vector<objc::Ref<UIGestureRecognizer>>& recognizers() { return recognizers_; }
  bool is_seen_by(UIGestureRecognizer recognizer) const;
  void forget(UIGestureRecognizer recognizer);

  /// Returns whether the recogniser is still undecided.
  using IsUndecided = bool (*)(UIGestureRecognizer);
  /// Tells the view what it has not been told yet, as far as undecided recognisers allow.
  void deliver(UIEvent event, IsUndecided is_undecided);
  /// Takes the touch away from its view, which is told so if it was told of the touch at all.
  void cancel_in_view(UIEvent event);
  /// Ensures that the view is never told of this touch.
  void keep_from_view() { delivery_ = Delivery::kOver; }
  bool view_awaits_more() const { return delivery_ != Delivery::kOver; }

 private:
  enum class Delivery { kNothing, kBegan, kOver };

  void tell(UITouchPhase phase, UIEvent event);

  objc::Ref<UIWindow> window_;
  objc::Ref<UIView> view_;
  std::vector<objc::Ref<UIGestureRecognizer>> recognizers_;
  CGPoint landing_point_;
  CGPoint location_;
  CGPoint previous_location_;
  double timestamp_ = 0;
  NSUInteger tap_count_ = 1;
  UITouchPhase phase_ = UITouchPhaseBegan;
  const UITouchPhase* told_phase_ = nullptr;
  Delivery delivery_ = Delivery::kNothing;
  bool move_untold_ = false;
};

void export_touch();

}  // namespace host::uikit
