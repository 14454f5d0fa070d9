#include "host/process/phone_screen.h"

#include <cmath>
#include <utility>

#include "host/quartzcore/layers/screen_density.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/runtime/device_model.h"
#include "host/uikit/geometry/window_list.h"

namespace host::process {

PhoneScreen::PhoneScreen(RunLoop& loop, screen::Screen& screen)
    : loop_(loop),
      screen_(screen),
      focus_(loop),
      observer_(loop.add_turn_observer(kTurnOrder, [this] { end_turn(); })) {
  make_compositor(current_device().scale);
}

PhoneScreen::~PhoneScreen() {
  loop_.remove_turn_observer(observer_);
  if (frame_request_) loop_.remove_frame_observer(*frame_request_);
}

void PhoneScreen::make_compositor(double scale) {
  const DeviceModel& device = current_device();
  const auto pixels = [scale](double points) {
    return static_cast<int>(std::lround(points * scale));
  };
  compositor_ =
      std::make_unique<quartzcore::Compositor>(pixels(device.width), pixels(device.height), scale);
  quartzcore::set_screen_density(scale / device.scale);
}

void PhoneScreen::follow_scale() {
  const double scale = screen_.pixels_per_point().value_or(current_device().scale);
  if (scale == compositor_->scale()) return;
  make_compositor(scale);
  if (rescaled_) rescaled_();
}

std::vector<CALayer> PhoneScreen::layers() const {
  std::vector<CALayer> layers;
  for (const UIWindow window : uikit::visible_windows())
    layers.push_back(window.layer());
  if (const CALayer ring = focus_.ring()) layers.push_back(ring);
  return layers;
}

void PhoneScreen::end_turn() {
  if (!screen_.is_watched()) return;
  const bool is_frame = loop_.turn_has_frame();
  if (!is_frame && loop_.wants_frames()) return;
  const bool has_drawn = !is_frame && drawn_frame_ == loop_.frame_number();
  if (has_drawn && !compositor_->is_current(layers())) {
    request_frame();
  } else {
    draw();
  }
  // Nothing is animated: time to prepare for the next animation.
  if (!loop_.wants_frames()) compositor_->prepare_ahead(layers(), loop_.now());
}

void PhoneScreen::request_frame() {
  frame_request_ = loop_.add_frame_observer([this](double) {
    loop_.remove_frame_observer(*std::exchange(frame_request_, std::nullopt));
  });
}

void PhoneScreen::draw() {
  follow_scale();
  quartzcore::Damage damage = compositor_->render(layers(), loop_.now());
  if (screen_.needs_everything()) damage = {compositor_->screen()};
  if (damage.empty()) return;
  drawn_frame_ = loop_.frame_number();
  screen_.show(picture(), damage);
}

screen::Picture PhoneScreen::picture() const {
  cairo_surface_t* surface = compositor_->surface().get();
  cairo_surface_flush(surface);
  return {cairo_image_surface_get_data(surface), cairo_image_surface_get_width(surface),
          cairo_image_surface_get_height(surface), cairo_image_surface_get_stride(surface)};
}

std::optional<std::string> PhoneScreen::with_picture(const Use& use) {
  quartzcore::flush_layers();
  const double scale = compositor_->scale();
  if (scale == current_device().scale) {
    draw();
    return use(picture());
  }
  auto shown = std::move(compositor_);
  make_compositor(current_device().scale);
  compositor_->render(layers(), loop_.now());
  auto problem = use(picture());
  compositor_ = std::move(shown);
  quartzcore::set_screen_density(scale / current_device().scale);
  return problem;
}

}  // namespace host::process
