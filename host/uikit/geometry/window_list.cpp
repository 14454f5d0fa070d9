#include "host/uikit/geometry/window_list.h"

#include <algorithm>

#include "host/uikit/geometry/screen_space.h"

namespace host::uikit {
namespace {

// In the order in which they were shown. Not retained: the owner of a window keeps it alive.
std::vector<UIWindow> shown;
UIWindow key;

}  // namespace

std::vector<UIWindow> visible_windows() {
  auto ordered = shown;
  std::stable_sort(ordered.begin(), ordered.end(), [](UIWindow below, UIWindow above) {
    return below.windowLevel() < above.windowLevel();
  });
  return ordered;
}

UIWindow key_window() {
  return key;
}

Hit find_hit(CGPoint point, UIEvent event) {
  const auto windows = visible_windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (const UIView view = window->hitTest(from_screen(*window, point), event))
      return {*window, view};
  }
  return {};
}

void show_in_list(UIWindow window) {
  std::erase(shown, window);
  shown.push_back(window);
}

void remove_from_list(UIWindow window) {
  std::erase(shown, window);
  if (key == window) key = nil;
}

void set_key_window(UIWindow window) {
  if (key == window) return;
  const UIWindow before = key;
  before.resignKeyWindow();
  key = window;
  key.becomeKeyWindow();
}

}  // namespace host::uikit
