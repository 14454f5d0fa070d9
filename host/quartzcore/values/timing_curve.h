#pragma once

namespace host::quartzcore {

/// A cubic Bézier curve from (0, 0) to (1, 1) over time; a straight line by default.
struct TimingCurve {
  double x1 = 0, y1 = 0, x2 = 1, y2 = 1;

  static constexpr TimingCurve ease_in() { return {0.42, 0, 1, 1}; }
  static constexpr TimingCurve ease_out() { return {0, 0, 0.58, 1}; }
  static constexpr TimingCurve ease_in_ease_out() { return {0.42, 0, 0.58, 1}; }
  static constexpr TimingCurve standard() { return {0.25, 0.1, 0.25, 1}; }

  /// Returns the progress at `time`. Both are from 0 to 1, but the progress may overshoot.
  double at(double time) const;
  friend constexpr bool operator==(const TimingCurve&, const TimingCurve&) = default;
};

}  // namespace host::quartzcore
