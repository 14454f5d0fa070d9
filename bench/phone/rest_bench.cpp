#include <sys/resource.h>

#include <charconv>
#include <cstdio>

#include "bench/phone/bench_phone.h"
#include "bench/support/ratio.h"

// Measures an untouched phone with its panel closed, in real time: `rest_bench [SECONDS]`. The cost
// is the user and system time of all threads of the process.

namespace {

constexpr double kSeconds = 60;
// The time until the music has been read and the home screen is at rest.
constexpr double kWarmUp = 5;
constexpr double kAllowedShare = 0.01;
constexpr double kSecondsInMinute = 60;
constexpr double kSongs = 40;

double seconds_of(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double processor_seconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return seconds_of(usage.ru_utime) + seconds_of(usage.ru_stime);
}

double number(const std::string& text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

}  // namespace

int main(int count, char** arguments) {
  const double seconds = count > 1 ? number(arguments[1]) : kSeconds;
  bench::require(seconds > 0, "the seconds are no number");
  bench::BenchPhone phone(bench::Pace::kReal, "{ enable = 1; cover = 1; checked = 1; }");
  phone.live(kWarmUp);
  phone.run("expect isShow == NO");
  bench::require(number(phone.run("print [[[[MPMediaQuery alloc] init] items] count]")) >= kSongs,
                 "the library is too small");
  const int frames_before = phone.screen().frames();
  bench::require(frames_before > 0, "nothing was ever painted");
  const double before = processor_seconds();
  phone.live(seconds);
  const double used = processor_seconds() - before;
  const int frames = phone.screen().frames() - frames_before;
  bench::print_ratio("at rest: processor time / 1 % of a core", used, seconds * kAllowedShare, 1);
  // The status bar's clock changes once a minute, and must.
  const int minutes = static_cast<int>(seconds / kSecondsInMinute) + 1;
  std::printf("at rest: %d frames painted in %g s   (aim: none but the %d of the clock)%s\n",
              frames, seconds, minutes, frames <= minutes ? "" : "   MISSED");
}
