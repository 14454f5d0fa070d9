#pragma once

#include <limits>

#include "host/runtime/run_loop.h"

namespace host::quartzcore {

/// Connects the layers of this process to a run loop: lays out and displays them at the end of each
/// turn, and requests frames only while something is animated. At most one exists at a time.
class LayerService {
 public:
  /// The order of layout among the observers of a turn's end; the screen renders after it.
  static constexpr int kTurnOrder = 100;

  explicit LayerService(RunLoop& loop);
  ~LayerService();
  LayerService(const LayerService&) = delete;
  LayerService& operator=(const LayerService&) = delete;

  /// The service of this process, or null.
  static LayerService* current();

  RunLoop& loop() { return loop_; }
  /// Sets the timer for the next end of an animation, and removes layers whose animations have
  /// ended. Animations end at their exact time, not at the next frame: a chain of them takes
  /// exactly the sum of their durations.
  void wait_for_next_end();

 private:
  void advance_animations();
  bool has_news() const;

  RunLoop& loop_;
  RunLoop::Id turn_observer_;
  RunLoop::Id end_timer_ = 0;
  double end_time_ = std::numeric_limits<double>::infinity();
};

/// Lays out and displays marked layers until none is left. A layer that another clips away stays
/// marked for display until it becomes visible.
void flush_layers();

/// Adds `flush` to CATransaction.
void export_layer_flush();

}  // namespace host::quartzcore
