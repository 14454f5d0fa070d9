#include "host/process/phone_screen.h"

#include <cmath>
#include <vector>

#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/uikit/geometry/window_list.h"

namespace host::process {
namespace {

int pixels(double points) {
  return static_cast<int>(std::lround(points * current_device().scale));
}

std::vector<CALayer> window_layers() {
  std::vector<CALayer> layers;
  for (const UIWindow window : uikit::visible_windows())
    layers.push_back(window.layer());
  return layers;
}

}  // namespace

PhoneScreen::PhoneScreen(RunLoop& loop, screen::Screen& screen)
    : loop_(loop),
      screen_(screen),
      compositor_(pixels(current_device().width), pixels(current_device().height),
                  current_device().scale),
      observer_(loop.add_turn_observer(kTurnOrder, [this] { end_turn(); })) {}

PhoneScreen::~PhoneScreen() {
  loop_.remove_turn_observer(observer_);
}

void PhoneScreen::end_turn() {
  if (!screen_.is_watched()) return;
  if (!loop_.wants_frames() || loop_.turn_has_frame()) draw();
  // Nothing is animated: time to prepare for the next animation.
  if (!loop_.wants_frames()) compositor_.prepare_ahead(window_layers(), loop_.now());
}

void PhoneScreen::draw() {
  const std::vector<CALayer> layers = window_layers();
  std::vector<screen::PixelRect> damage;
  for (const auto& part : compositor_.render(layers, loop_.now()))
    damage.push_back({part.x, part.y, part.width, part.height});
  if (screen_.needs_everything()) {
    const quartzcore::PixelRect whole = compositor_.screen();
    damage = {{whole.x, whole.y, whole.width, whole.height}};
  }
  if (!damage.empty()) screen_.show(picture(), damage);
}

screen::Picture PhoneScreen::picture() const {
  cairo_surface_t* surface = compositor_.surface().get();
  cairo_surface_flush(surface);
  return {cairo_image_surface_get_data(surface), cairo_image_surface_get_width(surface),
          cairo_image_surface_get_height(surface), cairo_image_surface_get_stride(surface)};
}

std::optional<std::string> PhoneScreen::write(const std::string& file) {
  quartzcore::flush_layers();
  draw();
  return screen::write_png(picture(), file);
}

}  // namespace host::process
