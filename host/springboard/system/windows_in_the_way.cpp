#include "host/springboard/system/windows_in_the_way.h"

#include "host/springboard/home/icon_controller.h"
#include "host/uikit/geometry/window_list.h"

namespace host::springboard {
namespace {

// Nothing that takes touches is smaller than a finger.
constexpr CGFloat kFinger = 40;

}  // namespace

std::vector<WindowInTheWay> windows_in_the_way() {
  std::vector<WindowInTheWay> found;
  const UIWindow home = icon_controller().home().window();
  const CGSize screen = home.bounds().size;
  for (CGFloat y = kFinger / 2; y < screen.height; y += kFinger) {
    for (CGFloat x = kFinger / 2; x < screen.width; x += kFinger) {
      const UIWindow window = uikit::find_hit({x, y}, nil).window;
      const bool is_homes = window == home || window.windowLevel() == UIWindowLevelStatusBar;
      const bool is_known = !found.empty() && found.back().window == window;
      if (window && !is_homes && !is_known) found.push_back({window, {x, y}});
    }
  }
  return found;
}

}  // namespace host::springboard
