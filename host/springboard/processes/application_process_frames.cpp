#include <utility>

#include "host/springboard/processes/application_process.h"

// Puts an application's frames on the screen.

namespace host::springboard {

using namespace application;

namespace {

/// The number of screen frames without a new picture after which the application is at rest.
constexpr int kRestAfter = 2;

/// Wraps the frame's pixels without copying them; keeps the memory alive as long as the surface.
quartzcore::Surface surface_on(const std::shared_ptr<const SharedSurface>& memory,
                               const NewFrame& frame) {
  using Owner = std::shared_ptr<const SharedSurface>;
  static const cairo_user_data_key_t kOwner{};
  // Cairo has no read-only surfaces; nothing draws on an image.
  auto* pixels = const_cast<unsigned char*>(memory->buffer(frame.buffer));
  cairo_surface_t* made =
      cairo_image_surface_create_for_data(pixels, CAIRO_FORMAT_ARGB32, frame.picture_width,
                                          frame.picture_height, memory->size().stride);
  cairo_surface_set_user_data(made, &kOwner, new Owner(memory),
                              [](void* owner) { delete static_cast<Owner*>(owner); });
  return quartzcore::Surface::adopt(made);
}

}  // namespace

// Of several frames that arrive at once only the last is shown. While an application animates, the
// screen is drawn once per frame, not again for each picture and each touch.
void ApplicationProcess::new_frame_came() {
  if (!new_frame_ || !is_alive()) return;
  // On a stepped clock the application may continue at once; the screen is drawn only afterwards.
  if (time_ == Time::Stepped) write(FrameTaken{});
  if (screen_frames_ || !is_alive()) return;
  show_new_frame();
  if (!is_alive()) return;
  quiet_frames_ = 0;
  screen_frames_ = loop_.add_frame_observer([this](double) { screen_frame(); });
}

void ApplicationProcess::screen_frame() {
  if (new_frame_) {
    quiet_frames_ = 0;
    show_new_frame();
  } else if (++quiet_frames_ >= kRestAfter) {
    loop_.remove_frame_observer(*screen_frames_);
    screen_frames_.reset();
  }
}

void ApplicationProcess::show_new_frame() {
  const NewFrame frame = *std::exchange(new_frame_, std::nullopt);
  const CGImageRef made =
      quartzcore::make_image(surface_on(surface_, frame), quartzcore::Opacity::Opaque);
  picture_ = objc::Ref<quartzcore::CGImageObject>::adopt(
      objc::cast<quartzcore::CGImageObject>(quartzcore::object_of(made)));
  if (events_.frame_came) events_.frame_came();
  if (time_ == Time::Real) write(FrameTaken{});
}

}  // namespace host::springboard
