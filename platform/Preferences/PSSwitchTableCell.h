#pragma once

#include "platform/Preferences/PSControlTableCell.h"
#include "platform/UIKit/UISwitch.h"

/// A row whose control is a switch.
struct PSSwitchTableCell : objc::Bound<PSSwitchTableCell, "PSSwitchTableCell", PSControlTableCell> {
  UISwitch switch_control() const { return objc::cast<UISwitch>(control()); }
};
