#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UISwitch.h"

namespace host::uikit {

/// A knob in a track. It moves to the other side by a tap or by a drag. The action is sent when the
/// finger lifts, and only when the value has changed.
class Switch : public objc::Implementation<Switch, UISwitch> {
 public:
  explicit Switch(UISwitch owner) : Implementation(owner) {}

  UIView init_with_frame(CGRect frame);
  BOOL is_on() const { return on_; }
  void set_on(BOOL on);
  void set_on_animated(BOOL on, BOOL animated);
  UIColor on_tint() const { return on_tint_.get(); }
  void set_on_tint(UIColor color);
  UIColor thumb_tint() const { return thumb_tint_.get(); }
  void set_thumb_tint(UIColor color);
  void set_enabled(BOOL enabled);
  void set_frame(CGRect frame);
  CGSize size_that_fits(CGSize size);

  BOOL begin_tracking(UITouch touch, UIEvent event);
  BOOL continue_tracking(UITouch touch, UIEvent event);
  void end_tracking(UITouch touch, UIEvent event);
  void cancel_tracking(UIEvent event);

 private:
  void build();
  void show(bool animated);
  void place() const;
  void finish(BOOL on);

  objc::Ref<UIView> rim_;
  objc::Ref<UIView> well_;
  objc::Ref<UIView> fill_;
  objc::Ref<UIView> knob_;
  objc::Ref<UIView> shadow_;
  objc::Ref<UIColor> on_tint_;
  objc::Ref<UIColor> thumb_tint_;
  BOOL on_ = NO;
  /// The side on which the knob is shown; a finger may have dragged it there.
  BOOL shown_on_ = NO;
  bool pressed_ = false;
  bool dragged_ = false;
  CGFloat pressed_at_ = 0;
};

void export_switch();

}  // namespace host::uikit
