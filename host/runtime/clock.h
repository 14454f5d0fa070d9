#pragma once

namespace host {

/// Time in seconds, growing only. Everything that waits is handed one of these; nothing reads the
/// time from the side.
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

/// A clock that stands still until it is told to move.
class SteppedClock final : public Clock {
 public:
  double now() const override { return now_; }
  /// Moves to `time`; an earlier time changes nothing.
  void move_to(double time) {
    if (time > now_) now_ = time;
  }

 private:
  // Not zero, so that a forgotten start time is noticed.
  double now_ = 1000.0;
};

}  // namespace host
