#pragma once

#include <variant>
#include <vector>

#include "host/uikit/scroll_physics/bounce.h"
#include "host/uikit/scroll_physics/deceleration.h"
#include "host/uikit/scroll_physics/paging.h"

namespace host::uikit {

enum class Edges { Bounce, Stop };

/// The motion of one axis of a scroll view from the release of the finger until it rests: it slows
/// down, runs over an edge and springs back, or springs to a page. A pure function of time.
class AxisGlide {
 public:
  /// At rest at `position`.
  explicit AxisGlide(double position = 0) : end_(position) {}

  /// Free motion from `position` with `velocity`, in points per second.
  static AxisGlide free(double position, double velocity, OffsetRange range, double rate,
                        Edges edges);
  /// Slows down to rest at `target`, or springs there from beyond an edge.
  static AxisGlide to(double position, double target, OffsetRange range, double rate);
  /// Springs to the page at `target`.
  static AxisGlide to_page(double position, double velocity, double target);

  double duration() const { return duration_; }
  double position(double time) const;
  double velocity(double time) const;
  double end() const { return end_; }

 private:
  struct Phase {
    double begin;
    std::variant<Deceleration, Spring> motion;
  };

  void add(const Deceleration& motion, double lasting);
  void add(const Spring& motion, double lasting);
  void add_free(double position, double velocity, OffsetRange range, double rate, Edges edges);
  void add_spring_to_edge(double position, double velocity, double edge, OffsetRange range,
                          double rate, Edges edges);
  const Phase* phase_at(double time) const;

  std::vector<Phase> phases_;
  double duration_ = 0;
  double end_ = 0;
};

}  // namespace host::uikit
