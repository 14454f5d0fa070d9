#pragma once

#include <vector>

#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UIWindow.h"

namespace host::uikit {

/// Returns the visible windows, back to front: by level, and within a level in the order in which
/// they were shown. The compositor's roots are their layers.
std::vector<UIWindow> visible_windows();
UIWindow key_window();

struct Hit {
  UIWindow window;
  UIView view;
};
/// Returns the topmost window with a view that takes the point of the screen, and that view; nil
/// for both when no view takes it.
Hit find_hit(CGPoint point, UIEvent event);

/// For windows only.
void show_in_list(UIWindow window);
void remove_from_list(UIWindow window);
void set_key_window(UIWindow window);

}  // namespace host::uikit
