#include <sys/resource.h>

#include <charconv>
#include <cstdio>

#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"

// Measures an untouched phone in real time, with its panel closed, and then with music behind a
// dark screen: `rest_bench [SECONDS]`. The cost is the time and the wake-ups of all threads of the
// process.

namespace {

using bench::BenchPhone;

constexpr double kSeconds = 60;
// The time until the music has been read and the home screen is at rest.
constexpr double kWarmUp = 5;
constexpr double kAllowedAtRest = 0.01;
constexpr double kAllowedPlaying = 0.005;
constexpr double kAllowedWakeUps = 12;
constexpr double kSecondsInMinute = 60;
constexpr double kSongs = 40;

double number(const std::string& text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

/// How often a thread of this process has gone to sleep.
long sleeps() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_nvcsw;
}

struct Cost {
  double processor = 0;
  double wake_ups = 0;  // a second
  int frames = 0;
};

Cost cost_of(BenchPhone& phone, double seconds) {
  const double before = bench::process_seconds();
  const long sleeps_before = sleeps();
  const int frames_before = phone.screen().frames();
  phone.live(seconds);
  return {bench::process_seconds() - before,
          static_cast<double>(sleeps() - sleeps_before) / seconds,
          phone.screen().frames() - frames_before};
}

void measure_rest(BenchPhone& phone, double seconds) {
  const Cost cost = cost_of(phone, seconds);
  bench::print_ratio("at rest: processor time / 1 % of a core", cost.processor,
                     seconds * kAllowedAtRest, 1);
  std::printf("at rest: %.1f wake-ups a second   (aim: at most %g)%s\n", cost.wake_ups,
              kAllowedWakeUps, cost.wake_ups <= kAllowedWakeUps ? "" : "   MISSED");
  // The status bar's clock changes once a minute, and must.
  const int minutes = static_cast<int>(seconds / kSecondsInMinute) + 1;
  std::printf("at rest: %d frames painted in %g s   (aim: none but the %d of the clock)%s\n",
              cost.frames, seconds, minutes, cost.frames <= minutes ? "" : "   MISSED");
}

void measure_dark(BenchPhone& phone, double seconds) {
  phone.run("print [[SBMediaController sharedInstance] togglePlayPause]");
  phone.run("button lock");
  phone.live(kWarmUp);
  const Cost cost = cost_of(phone, seconds);
  phone.run("expect [[SBMediaController sharedInstance] isPlaying] == YES");
  bench::require(cost.frames == 0, "the screen is not dark");
  bench::print_ratio("playing in the dark: processor time / 0.5 % of a core", cost.processor,
                     seconds * kAllowedPlaying, 1);
  std::printf("playing in the dark: %.1f wake-ups a second\n", cost.wake_ups);
}

}  // namespace

int main(int count, char** arguments) {
  const double seconds = count > 1 ? number(arguments[1]) : kSeconds;
  bench::require(seconds > 0, "the seconds are no number");
  BenchPhone phone(bench::Pace::kReal, "{ enable = 1; cover = 1; checked = 1; }");
  phone.live(kWarmUp);
  phone.run("expect isShow == NO");
  bench::require(number(phone.run("print [[[[MPMediaQuery alloc] init] items] count]")) >= kSongs,
                 "the library is too small");
  bench::require(phone.screen().frames() > 0, "nothing was ever painted");
  measure_rest(phone, seconds);
  measure_dark(phone, seconds);
}
