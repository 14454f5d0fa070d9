#pragma once

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

/// Draws the windows of this process at the end of every turn of the loop, and passes the changes
/// to the screen. A turn without changes draws nothing. While frames are requested, only frames are
/// drawn: turns between them would not be visible.
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
  void follow_scale();
  void make_compositor(double scale);
  std::vector<CALayer> layers() const;
  screen::Picture picture() const;

  RunLoop& loop_;
  screen::Screen& screen_;
  std::unique_ptr<quartzcore::Compositor> compositor_;
  uikit::Focus focus_;
  RunLoop::Id observer_;
  std::function<void()> rescaled_;
};

}  // namespace host::process
