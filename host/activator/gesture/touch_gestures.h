#pragma once

#include <functional>
#include <optional>
#include <set>

#include "host/activator/gesture/edge_slide.h"
#include "host/runtime/run_loop.h"
#include "host/uikit/touch/system_gestures.h"

namespace host::activator {

/// Called with an event that a finger or a button made. Returns true when a listener receives it;
/// the finger or press is consumed then.
using Recognized = std::function<bool(const char* event)>;

/// Recognises the events of one finger on the screen: slides over its edges, and taps and holds of
/// the status bar. A second finger ends them all.
class TouchGestures final : public uikit::SystemGestures {
 public:
  TouchGestures(RunLoop& loop, CGSize screen, Recognized recognized)
      : loop_(loop), screen_(screen), recognized_(std::move(recognized)) {}
  ~TouchGestures() override;
  TouchGestures(const TouchGestures&) = delete;
  TouchGestures& operator=(const TouchGestures&) = delete;

  Claim touch(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp) override;

 private:
  void began(CGPoint point, double timestamp);
  void moved(CGPoint point);
  void ended(double timestamp);
  void begin_bar_press(CGPoint point);
  void end_bar_press();
  void give_up();
  void recognize(const char* event);

  RunLoop& loop_;
  const CGSize screen_;
  const Recognized recognized_;
  std::set<int> fingers_;
  std::optional<EdgeSlide> slide_;
  /// Where and when the finger landed that may tap or hold the status bar.
  std::optional<CGPoint> bar_press_;
  double pressed_ = 0;
  std::optional<double> first_tap_;
  RunLoop::Id hold_ = 0;
  bool taken_ = false;
};

}  // namespace host::activator
