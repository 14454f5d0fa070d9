#pragma once

#include <limits>

#include "host/runtime/run_loop.h"

namespace host::quartzcore {

/// Ties the layers of this process to a run loop: lays out and displays at the end of each turn,
/// and asks for frames while, and only while, something is animated. One lives at a time.
class LayerService {
 public:
  /// Where layout stands among the observers of a turn's end; the screen renders after it.
  static constexpr int kTurnOrder = 100;

  explicit LayerService(RunLoop& loop);
  ~LayerService();
  LayerService(const LayerService&) = delete;
  LayerService& operator=(const LayerService&) = delete;

  /// The service of this process, or null.
  static LayerService* current();

  RunLoop& loop() { return loop_; }
  /// Animations end when their time is over and not at the next frame, so that a chain of them
  /// takes as long as it says. Lets go of layers of which nothing moves any more.
  void wait_for_next_end();

 private:
  void advance_animations();
  bool has_news() const;

  RunLoop& loop_;
  RunLoop::Id turn_observer_;
  RunLoop::Id end_timer_ = 0;
  double end_time_ = std::numeric_limits<double>::infinity();
};

/// Lays out and displays all layers that are marked, until none is. What another layer clips away
/// stays marked for display until it comes into sight.
void flush_layers();

/// Adds `flush` to CATransaction.
void export_layer_flush();

}  // namespace host::quartzcore
