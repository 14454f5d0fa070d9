#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIControl.h"

struct UISwitch : objc::Bound<UISwitch, "UISwitch", UIControl> {
  /// Every switch is of one size: only the origin counts.
  UISwitch initWithFrame(CGRect frame) const { return call<"initWithFrame:", UISwitch>(frame); }

  BOOL isOn() const { return call<"isOn", BOOL>(); }
  void setOn(BOOL on) const { call<"setOn:">(on); }
  /// Tells nobody: the action is for what a finger does.
  void setOn(BOOL on, BOOL animated) const { call<"setOn:animated:">(on, animated); }
  /// Nil for the platform's green.
  UIColor onTintColor() const { return call<"onTintColor", UIColor>(); }
  void setOnTintColor(UIColor color) const { call<"setOnTintColor:">(color); }
  UIColor thumbTintColor() const { return call<"thumbTintColor", UIColor>(); }
  void setThumbTintColor(UIColor color) const { call<"setThumbTintColor:">(color); }
};
