#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/application/surface/shared_surface.h"
#include "host/application/wire/messages.h"
#include "host/screen/screen.h"

namespace host::application {

/// The screen of an application: a picture goes into the buffer that the home screen does not show.
/// While both are taken what changes is remembered, and what the home screen has not asked for is
/// not copied.
class SurfaceScreen final : public screen::Screen {
 public:
  using Announce = std::function<void(const NewFrame&)>;

  explicit SurfaceScreen(Announce announce) : announce_(std::move(announce)) {}

  void show(const screen::Picture& picture, std::span<const screen::PixelRect> damage) override;

  /// A home screen to draw for, which has seen nothing yet.
  void attach(std::shared_ptr<SharedSurface> surface);
  void detach() { surface_.reset(); }
  void set_in_front(bool is_in_front);
  /// The home screen shows the frame that was announced last.
  void frame_taken();
  /// Is there something to see that only waits for a buffer?
  bool waits_for_buffer() const { return is_busy_ && !waiting_.is_empty(); }

 private:
  /// Of pixels; the smallest that holds all that was added.
  struct Part {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool is_empty() const { return right <= left || bottom <= top; }
    void add(const Part& other);
  };

  void send_waiting();
  void copy(const Part& part);
  Part whole() const;

  Announce announce_;
  std::shared_ptr<SharedSurface> surface_;
  std::optional<screen::Picture> picture_;
  /// What each buffer lacks, and what the home screen has not heard of.
  Part missing_[SharedSurface::kBuffers];
  Part waiting_;
  int next_buffer_ = 0;
  bool is_busy_ = false;
  bool is_in_front_ = false;
};

}  // namespace host::application
