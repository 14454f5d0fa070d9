#pragma once

namespace host::recording {

/// How closely a script repeats what was done. A stepped clock repeats it exactly. On a real clock
/// no two runs are the same, and a script that can be read is worth more than the last digit.
struct Fidelity {
  /// Waits and places are rounded to such parts of a second and of a point.
  double parts_of_second = 1e9;
  double parts_of_point = 1e6;
  /// How far, in points, the recorded path may be from the finger's.
  double bend = 1e-6;
  /// In seconds. A finger that has not moved for longer has rested.
  double rest = 0;
  /// Whether every report of a moving finger is repeated, and none added.
  bool keeps_reports = true;
  /// In seconds. Text that follows text no later than this is typed together with it.
  double typing = 0;

  static constexpr Fidelity exact() { return {}; }
  static constexpr Fidelity by_hand() {
    return {.parts_of_second = 1e3,
            .parts_of_point = 1e2,
            .bend = 1,
            .rest = 0.05,
            .keeps_reports = false,
            .typing = 1};
  }
};

}  // namespace host::recording
