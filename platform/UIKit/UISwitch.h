#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIControl.h"

struct UISwitch : objc::Bound<UISwitch, "UISwitch", UIControl> {
  /// Every switch has the same size: only the origin is used.
  UISwitch initWithFrame(CGRect frame) const { return call<"initWithFrame:", UISwitch>(frame); }

  BOOL isOn() const { return call<"isOn", BOOL>(); }
  void setOn(BOOL on) const { call<"setOn:">(on); }
  /// Does not send the action, which is for touches only.
  void setOn(BOOL on, BOOL animated) const { call<"setOn:animated:">(on, animated); }
  /// Nil means the platform's green.
  UIColor onTintColor() const { return call<"onTintColor", UIColor>(); }
  void setOnTintColor(UIColor color) const { call<"setOnTintColor:">(color); }
  UIColor thumbTintColor() const { return call<"thumbTintColor", UIColor>(); }
  void setThumbTintColor(UIColor color) const { call<"setThumbTintColor:">(color); }
};
