#include "host/applications/program/surface_screen.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace host::application {

void SurfaceScreen::show(const screen::Picture& picture, std::span<const PixelRect> damage) {
  const bool is_resized = picture_ && picture_->width != picture.width;
  picture_ = picture;
  if (is_resized) forget_frames();
  PixelRect changed;
  for (const PixelRect& one : damage)
    changed = united(changed, one);
  for (PixelRect& missing : missing_)
    missing = united(missing, changed);
  waiting_ = united(waiting_, changed);
  send_waiting();
}

void SurfaceScreen::attach(std::shared_ptr<SharedSurface> surface) {
  surface_ = std::move(surface);
  next_buffer_ = 0;
  is_busy_ = false;
  pixels_per_point_.reset();
  forget_frames();
  send_waiting();
}

void SurfaceScreen::forget_frames() {
  for (PixelRect& missing : missing_)
    missing = whole();
  waiting_ = whole();
}

void SurfaceScreen::set_in_front(bool is_in_front) {
  is_in_front_ = is_in_front;
  send_waiting();
}

void SurfaceScreen::frame_taken() {
  is_busy_ = false;
  send_waiting();
}

PixelRect SurfaceScreen::whole() const {
  if (!picture_ || !surface_) return {};
  return {0, 0, std::min(picture_->width, surface_->size().width),
          std::min(picture_->height, surface_->size().height)};
}

void SurfaceScreen::send_waiting() {
  if (!surface_ || !picture_ || !is_in_front_ || is_busy_ || waiting_.is_empty()) return;
  copy(std::exchange(missing_[next_buffer_], PixelRect()));
  const PixelRect part = std::exchange(waiting_, PixelRect());
  const int buffer = std::exchange(next_buffer_, 1 - next_buffer_);
  is_busy_ = true;
  const PixelRect all = whole();
  announce_({static_cast<std::uint8_t>(buffer), all.width, all.height, part.x, part.y, part.width,
             part.height});
}

void SurfaceScreen::copy(const PixelRect& wanted) {
  const PixelRect part = intersection(wanted, whole());
  if (part.is_empty()) return;
  const auto offset = static_cast<std::size_t>(part.x) * 4;
  const auto bytes = static_cast<std::size_t>(part.width) * 4;
  const auto stride = static_cast<std::size_t>(surface_->size().stride);
  unsigned char* to = surface_->writable_buffer(next_buffer_);
  for (int row = part.y; row < part.bottom(); ++row) {
    const auto y = static_cast<std::size_t>(row);
    const auto from_stride = static_cast<std::size_t>(picture_->stride);
    std::memcpy(to + y * stride + offset, picture_->pixels + y * from_stride + offset, bytes);
  }
}

}  // namespace host::application
