#include "host/springboard/switcher/screen_picture.h"

#include <cmath>
#include <vector>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/run_loop.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/home/icon_controller.h"
#include "host/springboard/status_bar/status_bar.h"
#include "host/uikit/geometry/window_list.h"
#include "platform/UIKit/UIScreen.h"

namespace host::springboard {
namespace {

constexpr CGFloat kPartOfScale = 0.5;

UIImage picture_of(const std::vector<CALayer>& layers) {
  const CGSize points = screen_grid().screen;
  const CGFloat scale = UIScreen::mainScreen().scale() * kPartOfScale;
  const auto pixels = [scale](CGFloat length) {
    return static_cast<int>(std::lround(length * scale));
  };
  quartzcore::flush_layers();
  quartzcore::Compositor compositor(pixels(points.width), pixels(points.height), scale);
  compositor.render(layers, RunLoop::main().now());
  cairo_surface_flush(compositor.surface().get());
  const CGImageRef image =
      quartzcore::make_image(compositor.surface(), quartzcore::Opacity::Opaque);
  const UIImage made = UIImage::imageWithCGImage(image, scale, UIImageOrientationUp);
  CGImageRelease(image);
  return made;
}

bool is_status_bar(UIWindow window) {
  return window.windowLevel() == UIWindowLevelStatusBar;
}

}  // namespace

UIImage picture_of_front() {
  std::vector<CALayer> layers;
  for (const UIWindow window : uikit::visible_windows()) {
    if (window.windowLevel() <= UIWindowLevelStatusBar) layers.push_back(window.layer());
  }
  return picture_of(layers);
}

UIImage picture_of_home() {
  const HomeScreen& home =
      objc::state_of<IconController>(SBIconController::sharedInstance()).home();
  std::vector<CALayer> layers;
  // Applications are drawn over the home screen's own views, in its window or in one above it.
  for (const UIView view : home.window().subviews().of<UIView>()) {
    layers.push_back(view.layer());
    if (view == home.content()) break;
  }
  for (const UIWindow window : uikit::visible_windows()) {
    if (is_status_bar(window)) layers.push_back(window.layer());
  }
  // Over an application in front it may be dark, which would be unreadable on the home screen.
  const bool was_dark = set_status_bar_dark(false);
  const UIImage picture = picture_of(layers);
  set_status_bar_dark(was_dark);
  return picture;
}

}  // namespace host::springboard
