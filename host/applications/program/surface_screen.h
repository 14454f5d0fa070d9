#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/application/surface/shared_surface.h"
#include "host/application/wire/messages.h"
#include "host/screen/screen.h"

namespace host::application {

/// The screen of an application: frames are copied into the buffer that the home screen does not
/// show. Until the home screen has taken the last frame, and while the application is not in front,
/// damage is collected without copying.
class SurfaceScreen final : public screen::Screen {
 public:
  using Announce = std::function<void(const NewFrame&)>;

  explicit SurfaceScreen(Announce announce) : announce_(std::move(announce)) {}

  void show(const screen::Picture& picture, std::span<const screen::PixelRect> damage) override;

  std::optional<double> pixels_per_point() const override { return pixels_per_point_; }
  /// From the next `show` on, until a new surface is attached.
  void set_pixels_per_point(double pixels) { pixels_per_point_ = pixels; }

  /// Starts drawing for a new home screen, which gets the whole picture.
  void attach(std::shared_ptr<SharedSurface> surface);
  void detach() { surface_.reset(); }
  void set_in_front(bool is_in_front);
  /// Call when the home screen shows the last announced frame.
  void frame_taken();
  /// Returns true when a change is waiting for a free buffer.
  bool waits_for_buffer() const { return is_busy_ && !waiting_.is_empty(); }

 private:
  void forget_frames();
  void send_waiting();
  void copy(const PixelRect& part);
  PixelRect whole() const;

  Announce announce_;
  std::shared_ptr<SharedSurface> surface_;
  std::optional<screen::Picture> picture_;
  std::optional<double> pixels_per_point_;
  /// The damage that each buffer lacks, and the damage not yet announced.
  PixelRect missing_[SharedSurface::kBuffers];
  PixelRect waiting_;
  int next_buffer_ = 0;
  bool is_busy_ = false;
  bool is_in_front_ = false;
};

}  // namespace host::application
