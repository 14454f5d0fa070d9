#pragma once

#include "platform/Preferences/PSTableCell.h"

/// A row with a control at its right end.
struct PSControlTableCell : objc::Bound<PSControlTableCell, "PSControlTableCell", PSTableCell> {
  UIControl control() const { return call<"control", UIControl>(); }
  void setControl(UIControl control) const { call<"setControl:">(control); }
  /// Made by subclasses; +1.
  UIControl newControl() const { return call<"newControl", UIControl>(); }
  /// What the control says now.
  objc::Object controlValue() const { return call<"controlValue", objc::Object>(); }
};
