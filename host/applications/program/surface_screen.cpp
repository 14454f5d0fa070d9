#include "host/applications/program/surface_screen.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace host::application {

void SurfaceScreen::Part::add(const Part& other) {
  if (other.is_empty()) return;
  if (is_empty()) {
    *this = other;
    return;
  }
  left = std::min(left, other.left);
  top = std::min(top, other.top);
  right = std::max(right, other.right);
  bottom = std::max(bottom, other.bottom);
}

void SurfaceScreen::show(const screen::Picture& picture,
                         std::span<const screen::PixelRect> damage) {
  const bool is_resized = picture_ && picture_->width != picture.width;
  picture_ = picture;
  if (is_resized) forget_frames();
  Part changed;
  for (const screen::PixelRect& one : damage)
    changed.add({one.x, one.y, one.x + one.width, one.y + one.height});
  for (Part& missing : missing_)
    missing.add(changed);
  waiting_.add(changed);
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
  for (Part& missing : missing_)
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

SurfaceScreen::Part SurfaceScreen::whole() const {
  if (!picture_ || !surface_) return {};
  return {0, 0, std::min(picture_->width, surface_->size().width),
          std::min(picture_->height, surface_->size().height)};
}

void SurfaceScreen::send_waiting() {
  if (!surface_ || !picture_ || !is_in_front_ || is_busy_ || waiting_.is_empty()) return;
  copy(std::exchange(missing_[next_buffer_], Part()));
  const Part part = std::exchange(waiting_, Part());
  const int buffer = std::exchange(next_buffer_, 1 - next_buffer_);
  is_busy_ = true;
  const Part all = whole();
  announce_({static_cast<std::uint8_t>(buffer), all.right, all.bottom, part.left, part.top,
             part.right - part.left, part.bottom - part.top});
}

void SurfaceScreen::copy(const Part& part) {
  const Part all = whole();
  const int left = std::max(part.left, 0);
  const int right = std::min(part.right, all.right);
  if (right <= left) return;
  const auto offset = static_cast<std::size_t>(left) * 4;
  const auto bytes = static_cast<std::size_t>(right - left) * 4;
  const auto stride = static_cast<std::size_t>(surface_->size().stride);
  unsigned char* to = surface_->writable_buffer(next_buffer_);
  for (int row = std::max(part.top, 0); row < std::min(part.bottom, all.bottom); ++row) {
    const auto y = static_cast<std::size_t>(row);
    const auto from_stride = static_cast<std::size_t>(picture_->stride);
    std::memcpy(to + y * stride + offset, picture_->pixels + y * from_stride + offset, bytes);
  }
}

}  // namespace host::application
