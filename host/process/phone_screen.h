#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/compositing/compositor.h"
#include "host/runtime/run_loop.h"
#include "host/screen/screen.h"
#include "host/uikit/focus/focus.h"

namespace host::process {

/// Draws the windows of this process at the end of a turn of the loop, and passes the changes to
/// the screen. A turn without changes draws nothing. What changes at rest is drawn at once; then,
/// and while frames are requested, the next picture is that of the next frame: more would not be
/// visible.
class PhoneScreen {
 public:
  /// The order among the observers of a turn's end: after layout.
  static constexpr int kTurnOrder = 200;

  PhoneScreen(RunLoop& loop, screen::Screen& screen);
  ~PhoneScreen();
  PhoneScreen(const PhoneScreen&) = delete;
  PhoneScreen& operator=(const PhoneScreen&) = delete;

  /// Sets the function called when the screen has taken another number of pixels per point.
  void on_rescale(std::function<void()> rescaled) { rescaled_ = std::move(rescaled); }

  /// Updates the picture and hands it to `use`, always with the device's pixels. Returns what that
  /// returns, for instance why it failed.
  using Use = std::function<std::optional<std::string>(const screen::Picture&)>;
  std::optional<std::string> with_picture(const Use& use);
  const quartzcore::Compositor& compositor() const { return *compositor_; }

 private:
  void end_turn();
  void draw();
  void request_frame();
  void follow_scale();
  void make_compositor(double scale);
  std::vector<CALayer> layers() const;
  screen::Picture picture() const;

  RunLoop& loop_;
  screen::Screen& screen_;
  std::unique_ptr<quartzcore::Compositor> compositor_;
  uikit::Focus focus_;
  RunLoop::Id observer_;
  // The frame of the last picture.
  std::int64_t drawn_frame_ = -1;
  std::optional<RunLoop::Id> frame_request_;
  std::function<void()> rescaled_;
};

}  // namespace host::process
