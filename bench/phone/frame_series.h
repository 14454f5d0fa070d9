#pragma once

#include <string_view>
#include <utility>
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

  /// Runs one frame that begins with `work`, a touch or nothing. What is drawn at once and what
  /// follows with the next frame are two pictures, each with its own time. Work without a picture
  /// is not counted: it would improve the result.
  template <class Work>
  void frame(Series& series, Work work) {
    const std::size_t before = series.frames.size();
    double last = core_seconds();
    phone_.screen().on_show([&] {
      const double now = core_seconds();
      series.frames.push_back(now - std::exchange(last, now));
    });
    work();
    phone_.frame();
    phone_.screen().on_show({});
    if (series.frames.size() > before) series.frames.back() += core_seconds() - last;
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
