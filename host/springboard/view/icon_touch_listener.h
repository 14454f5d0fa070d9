#pragma once

#include "platform/SpringBoard/SBIconView.h"

namespace host::springboard {

/// Hears what happens to icon views. Points are in the coordinates of the icon's window.
class IconTouchListener {
 public:
  virtual void icon_touched(SBIconView icon_view, CGPoint point) = 0;
  virtual void icon_dragged(SBIconView icon_view, CGPoint point) = 0;
  virtual void icon_released(SBIconView icon_view) = 0;
  virtual void icon_tapped(SBIconView icon_view) = 0;
  virtual void icon_pressed_long(SBIconView icon_view) = 0;

 protected:
  ~IconTouchListener() = default;
};

}  // namespace host::springboard
