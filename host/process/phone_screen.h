#pragma once

#include <optional>
#include <string>

#include "host/quartzcore/compositing/compositor.h"
#include "host/runtime/run_loop.h"
#include "host/screen/screen.h"

namespace host::process {

/// Draws the windows of this process at the end of every turn of the loop and hands what changed to
/// the screen. A turn that changed nothing draws nothing, and while frames are coming those are
/// drawn and no moments between them, which nobody would see.
class PhoneScreen {
 public:
  /// Among the observers of a turn's end: after layout.
  static constexpr int kTurnOrder = 200;

  PhoneScreen(RunLoop& loop, screen::Screen& screen);
  ~PhoneScreen();
  PhoneScreen(const PhoneScreen&) = delete;
  PhoneScreen& operator=(const PhoneScreen&) = delete;

  /// Brings the picture up to date and writes it to a PNG file. Gives the reason when it cannot.
  std::optional<std::string> write(const std::string& file);
  const quartzcore::Compositor& compositor() const { return compositor_; }

 private:
  void end_turn();
  void draw();
  screen::Picture picture() const;

  RunLoop& loop_;
  screen::Screen& screen_;
  quartzcore::Compositor compositor_;
  RunLoop::Id observer_;
};

}  // namespace host::process
