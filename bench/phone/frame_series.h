#pragma once

#include <string_view>
#include <vector>

#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"

namespace bench {

/// Times of the frames of one movement, and of copies of a frame made in between. Both are this
/// thread's CPU time, which excludes other programs.
struct Series {
  std::vector<double> frames;
  std::vector<double> copies;
};

class Stopwatch {
 public:
  explicit Stopwatch(BenchPhone& phone) : phone_(phone) {}

  /// Runs one frame that begins with `work`, a touch or nothing. A frame in which nothing was
  /// painted is not counted: it would improve the result.
  template <class Work>
  void frame(Series& series, Work work) {
    const int before = phone_.screen().frames();
    const double start = core_seconds();
    work();
    phone_.frame();
    const double seconds = core_seconds() - start;
    if (phone_.screen().frames() > before) series.frames.push_back(seconds);
    copy_frame(series);
  }
  void frames(Series& series, int count) {
    for (int i = 0; i < count; ++i)
      frame(series, [] {});
  }

 private:
  void copy_frame(Series& series);

  BenchPhone& phone_;
  std::vector<unsigned char> copy_;
};

/// Prints two lines: the median and the worst frame, relative to the median copy of a frame.
void print_frames(std::string_view what, const Series& series);

}  // namespace bench
