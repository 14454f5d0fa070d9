#pragma once

#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"

namespace host::uikit {

/// Turns fingers into control events, and control events into actions.
class Control : public objc::Implementation<Control, UIControl> {
 public:
  explicit Control(UIControl owner) : Implementation(owner) {}

  void add_target(objc::Object target, objc::Sel action, UIControlEvents events);
  void remove_target(objc::Object target, objc::Sel action, UIControlEvents events);
  NSSet all_targets() const;
  UIControlEvents all_control_events() const;
  NSArray actions_for_target(objc::Object target, UIControlEvents event) const;
  void send_actions(UIControlEvents events);
  void send_action(objc::Sel action, objc::Object target, UIEvent event);

  BOOL is_enabled() const { return enabled_; }
  void set_enabled(BOOL enabled);
  BOOL is_selected() const { return selected_; }
  void set_selected(BOOL selected);
  BOOL is_highlighted() const { return highlighted_; }
  void set_highlighted(BOOL highlighted);
  UIControlState state() const;
  BOOL is_tracking() const { return tracking_; }
  BOOL is_touch_inside() const { return touch_inside_; }
  UIControlContentHorizontalAlignment content_horizontal_alignment() const { return alignment_; }
  void set_content_horizontal_alignment(UIControlContentHorizontalAlignment alignment);

  BOOL begin_tracking(UITouch, UIEvent) { return YES; }
  BOOL continue_tracking(UITouch, UIEvent) { return YES; }
  void end_tracking(UITouch, UIEvent) {}
  void cancel_tracking(UIEvent) {}

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
  BOOL gesture_recognizer_should_begin(UIGestureRecognizer recognizer);

 private:
  struct Registration {
    objc::Object target;
    objc::Sel action;
    UIControlEvents events;
  };

  void send(UIControlEvents events, UIEvent event);
  bool is_near(UITouch touch) const;
  void stop_tracking();

  std::vector<Registration> registrations_;
  UIControlContentHorizontalAlignment alignment_ = UIControlContentHorizontalAlignmentCenter;
  BOOL enabled_ = YES;
  BOOL selected_ = NO;
  BOOL highlighted_ = NO;
  BOOL tracking_ = NO;
  BOOL touch_inside_ = NO;
};

void export_control_class();

}  // namespace host::uikit
