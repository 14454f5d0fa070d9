#pragma once

namespace host {

/// Monotonic time in seconds. All code that waits is given a clock and reads the time from nowhere
/// else.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual double now() const = 0;
};

/// The machine's monotonic clock.
class RealClock final : public Clock {
 public:
  double now() const override;
};

/// A clock that only moves on request.
class SteppedClock final : public Clock {
 public:
  double now() const override { return now_; }
  /// Moves to `time`; ignores an earlier time.
  void move_to(double time) {
    if (time > now_) now_ = time;
  }

 private:
  // Not zero, to expose an uninitialized start time.
  double now_ = 1000.0;
};

}  // namespace host
