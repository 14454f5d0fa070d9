#pragma once

#include "host/runtime/run_loop.h"

namespace host::browser {

/// Whether to log something that visitors could cause again and again: at most once a minute.
class Complaint {
 public:
  explicit Complaint(const RunLoop& loop) : loop_(loop) {}

  bool is_due() {
    if (loop_.now() - last_ < kQuiet) return false;
    last_ = loop_.now();
    return true;
  }

 private:
  static constexpr double kQuiet = 60;  // In seconds.

  const RunLoop& loop_;
  double last_ = -kQuiet;
};

}  // namespace host::browser
