#pragma once

#include "platform/Preferences/PSTableCell.h"

/// A row with a control at its trailing edge.
struct PSControlTableCell : objc::Bound<PSControlTableCell, "PSControlTableCell", PSTableCell> {
  UIControl control() const { return call<"control", UIControl>(); }
  void setControl(UIControl control) const { call<"setControl:">(control); }
  /// Overridden by subclasses to make the control (+1).
  UIControl newControl() const { return call<"newControl", UIControl>(); }
  /// The control's current value.
  objc::Object controlValue() const { return call<"controlValue", objc::Object>(); }
};
