#pragma once

#include <algorithm>

namespace host::media {

// The position in a song on a stepped clock. `now` is that clock's time, in seconds.
class SteppedPosition {
 public:
  void start(double now) {
    if (is_running_) return;
    anchor_time_ = now;
    is_running_ = true;
  }

  void halt(double now) {
    anchor_position_ = at(now);
    is_running_ = false;
  }

  void jump(double position, double now) {
    anchor_position_ = position;
    anchor_time_ = now;
  }

  double at(double now) const {
    return is_running_ ? anchor_position_ + std::max(0.0, now - anchor_time_) : anchor_position_;
  }

 private:
  double anchor_position_ = 0;
  double anchor_time_ = 0;
  bool is_running_ = false;
};

}  // namespace host::media
