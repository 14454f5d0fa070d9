#pragma once

#include <optional>
#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// The state machine shared by all recognisers. A subclass watches touches and requests states with
/// `setState:`; whether it gets them is decided together with the other recognisers of its touches.
class GestureRecognizer : public objc::Implementation<GestureRecognizer, UIGestureRecognizer> {
 public:
  explicit GestureRecognizer(UIGestureRecognizer owner) : Implementation(owner) {}

  UIGestureRecognizer init();
  UIGestureRecognizer init_with_target(objc::Object target, objc::Sel action);
  void add_target(objc::Object target, objc::Sel action);
  void remove_target(objc::Object target, objc::Sel action);

  UIGestureRecognizerState state() const { return state_; }
  void set_state(UIGestureRecognizerState wanted);
  UIView view() const { return view_; }
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  BOOL is_enabled() const { return enabled_; }
  void set_enabled(BOOL enabled);
  BOOL cancels_touches_in_view() const { return cancels_touches_in_view_; }
  void set_cancels_touches_in_view(BOOL cancels) { cancels_touches_in_view_ = cancels; }
  BOOL delays_touches_began() const { return delays_touches_began_; }
  void set_delays_touches_began(BOOL delays) { delays_touches_began_ = delays; }
  BOOL delays_touches_ended() const { return delays_touches_ended_; }
  void set_delays_touches_ended(BOOL delays) { delays_touches_ended_ = delays; }
  void require_to_fail(UIGestureRecognizer other);

  NSUInteger number_of_touches() const { return touches_.size(); }
  CGPoint location_in_view(UIView view) const;
  CGPoint location_of_touch(NSUInteger index, UIView view) const;

  // For subclasses.
  void touches_began(NSSet, UIEvent) {}
  void touches_moved(NSSet, UIEvent) {}
  void touches_ended(NSSet, UIEvent) {}
  void touches_cancelled(NSSet, UIEvent) {}
  void reset() {}
  void ignore_touch(UITouch touch, UIEvent event);
  BOOL can_prevent(UIGestureRecognizer) { return YES; }
  BOOL can_be_prevented_by(UIGestureRecognizer) { return YES; }

  // For the rest of the host.
  const std::vector<objc::Ref<UITouch>>& touches() const { return touches_; }
  /// The middle of the touches in screen coordinates; of the last touches when all have lifted.
  CGPoint screen_location() const;
  void set_view(UIView view) { view_ = view; }
  /// Detaches the recogniser from its view: cancels a gesture under way, then forgets the view.
  void leave_view();
  /// Returns whether it has seen touches but has not decided yet.
  bool is_undecided() const { return engaged_ && state_ == UIGestureRecognizerStatePossible; }
  bool is_under_way() const {
    return state_ == UIGestureRecognizerStateBegan || state_ == UIGestureRecognizerStateChanged;
  }
  bool is_over() const { return !is_under_way() && state_ != UIGestureRecognizerStatePossible; }

  // For the arena only.
  void take(UITouch touch);
  void drop_lifted_touches();
  bool is_ready_to_reset() const { return is_over() && touches_.empty(); }
  void start_over();
  bool shares_touch_with(const GestureRecognizer& other) const;
  bool waits_for(UIGestureRecognizer other) const;
  bool is_waiting() const { return wanted_.has_value(); }
  /// Called when another recogniser has failed: enters the state that was delayed, if it may now.
  void reconsider();
  void fail();
  UIGestureRecognizer handle() const { return self; }

 private:
  struct Target {
    objc::Object object;
    objc::Sel action;
  };

  void recognize(UIGestureRecognizerState wanted);
  void settle_recognition();
  bool may_begin() const;
  void take_state(UIGestureRecognizerState state);
  void abandon();

  UIView view_;
  objc::Object delegate_;
  std::vector<Target> targets_;
  std::vector<UIGestureRecognizer> required_failures_;
  std::vector<objc::Ref<UITouch>> touches_;
  CGPoint last_location_;
  UIGestureRecognizerState state_ = UIGestureRecognizerStatePossible;
  // The state delayed until another recogniser fails, and whether the gesture has ended meanwhile.
  std::optional<UIGestureRecognizerState> wanted_;
  bool ended_while_waiting_ = false;
  bool engaged_ = false;
  BOOL enabled_ = YES;
  BOOL cancels_touches_in_view_ = YES;
  BOOL delays_touches_began_ = NO;
  BOOL delays_touches_ended_ = YES;
};

void export_gesture_recognizer();

}  // namespace host::uikit
