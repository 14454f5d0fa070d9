#include <cmath>
#include <cstdio>

#include "bench/phone/frame_series.h"
#include "bench/phone/own_programs.h"

// Measures the home screen's cost for a frame of the banner while an application runs below it, at
// rest and with a gliding list, relative to a plain copy of one frame.

namespace {

using bench::BenchPhone;
using bench::Series;
using bench::Stopwatch;
using host::screen::TouchPhase;

constexpr int kRounds = 5;
constexpr int kDragFrames = 60;
constexpr CGFloat kDragStep = 6;
/// The panel's top while the banner hangs.
constexpr CGFloat kHangs = -517;

enum class Below { kAtRest, kGliding };

CGPoint middle_of(BenchPhone& phone, const char* view) {
  CGPoint point;
  const std::string text = phone.run(std::string("where ") + view);
  bench::require(std::sscanf(text.c_str(), "{%lf, %lf}", &point.x, &point.y) == 2, text);
  return point;
}

void fling_list(BenchPhone& phone, bool down) {
  phone.run(down ? "drag 187 600 187 300 0.08" : "drag 187 300 187 600 0.08");
}

void drag_banner(BenchPhone& phone, Series& series, Below below, int round) {
  Stopwatch watch(phone);
  phone.run("print [Spring showBanner]");
  phone.run("advance 1");
  phone.run("expect isBanner == YES");
  if (below == Below::kGliding) fling_list(phone, round % 2 == 0);
  CGPoint finger = middle_of(phone, "grabs");
  phone.touch(TouchPhase::Began, finger);
  for (int i = 0; i < kDragFrames; ++i) {
    finger.y += kDragStep;
    watch.frame(series, [&] { phone.touch(TouchPhase::Moved, finger); });
  }
  double top = 0;
  const auto frame = phone.run("print [window frame]");
  bench::require(std::sscanf(frame.c_str(), "{{0, %lf}", &top) == 1, frame);
  // Minus the distance that a finger moves before the drag begins.
  bench::require(std::abs(top - (kHangs + kDragFrames * kDragStep)) <= 2.5 * kDragStep,
                 "the banner does not follow: " + frame);
  phone.touch(TouchPhase::Ended, finger);
  phone.run("advance 1");
  phone.run("expect showed == YES");
  phone.run("drag 187 657 187 300 0.3");
  phone.run("advance 3");
  phone.run("expect isBanner == NO");
}

void measure(BenchPhone& phone, Below below, const char* what) {
  Series series;
  for (int round = 0; round < kRounds; ++round)
    drag_banner(phone, series, below, round);
  bench::require(series.frames.size() >= kRounds * kDragFrames * 9 / 10, "frames were not painted");
  bench::print_frames(what, series);
}

}  // namespace

int main() {
  BenchPhone phone(bench::Pace::kStepped, R"({ enable = 1; cover = 1; checked = 1; })");
  const bench::OwnPrograms programs(phone);
  phone.run("advance 1");
  phone.run("print [[SBMediaController sharedInstance] togglePlayPause]");
  phone.run("system open com.apple.Music");
  phone.run("advance 2");
  phone.run("process Music");
  phone.run(
      "expect [[[UIApplication sharedApplication] songsTable] numberOfRowsInSection:0] == 44");
  phone.run("process SpringBoard");
  measure(phone, Below::kAtRest, "banner, application at rest");
  measure(phone, Below::kGliding, "banner, application gliding");
}
