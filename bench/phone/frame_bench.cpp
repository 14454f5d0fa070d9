#include <unistd.h>

#include <cmath>
#include <cstdio>

#include "bench/phone/frame_series.h"

// Measures the cost of a frame of the phone, from the touch to the finished picture, relative to a
// plain copy of one frame.

namespace {

using bench::BenchPhone;
using bench::Series;
using bench::Stopwatch;
using host::screen::TouchPhase;
using Pixels = std::vector<std::uint32_t>;

constexpr int kRounds = 5;
constexpr int kDragFrames = 45;
// The glide, the icon's flight and the fade of the contents.
constexpr int kPresentFrames = 84;
constexpr int kOpenFrames = 100;
// The player starts asynchronously, so the status bar may or may not show that it plays.
constexpr double kStatusBarSign = 0.0005;
constexpr useconds_t kCoverTime = 100'000;
constexpr CGPoint kDragStep{1, -5};

/// The share of pixels in which two pictures differ noticeably.
double difference(const Pixels& a, const Pixels& b) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    int most = 0;
    for (int shift = 0; shift < 24; shift += 8)
      most = std::max(most, std::abs(static_cast<int>(a[i] >> shift & 255) -
                                     static_cast<int>(b[i] >> shift & 255)));
    count += most > 4;
  }
  return static_cast<double>(count) / static_cast<double>(a.size());
}

/// The pixels around a point of the screen, in points.
Pixels patch(const BenchPhone& phone, const Pixels& pixels, CGPoint centre) {
  constexpr int kHalf = 20;
  const int width = phone.screen().picture().width;
  Pixels part;
  for (int y = -kHalf; y < kHalf; ++y) {
    for (int x = -kHalf; x < kHalf; ++x)
      part.push_back(pixels[static_cast<std::size_t>((static_cast<int>(centre.y) * 2 + y) * width +
                                                     static_cast<int>(centre.x) * 2 + x)]);
  }
  return part;
}

CGPoint origin_of(BenchPhone& phone, const char* view) {
  CGPoint origin;
  const std::string text = phone.run(std::string("print [[") + view + " superview] convertRect:[" +
                                     view + " frame] toView:nil]");
  bench::require(std::sscanf(text.c_str(), "{{%lf, %lf}", &origin.x, &origin.y) == 2, text);
  return origin;
}

enum class Behind { kArtwork, kHome };

struct Figures {
  Series drag;
  Series present;
  Series open;
};

struct Pictures {
  Pixels home;
  Pixels panel;
};

// The centre of an icon's picture, relative to its view's corner.
constexpr CGPoint kIconMiddle{30, 30};

void drag_out(BenchPhone& phone, Stopwatch& watch, Series& series, const Pixels& home) {
  const CGPoint icon = origin_of(phone, "musicIcon");
  CGPoint finger{icon.x + kIconMiddle.x, icon.y + kIconMiddle.y};
  phone.touch(TouchPhase::Began, finger);
  for (int i = 0; i < 6; ++i)
    phone.frame();
  for (int i = 0; i < kDragFrames; ++i) {
    finger = {finger.x + kDragStep.x, finger.y + kDragStep.y};
    watch.frame(series, [&] { phone.touch(TouchPhase::Moved, finger); });
  }
  const CGPoint twin = origin_of(phone, "music");
  const Pixels now = phone.pixels();
  bench::require(std::abs(twin.y - (icon.y + kDragFrames * kDragStep.y)) <= 12,
                 "the twin does not follow the finger");
  const auto middle = [](CGPoint corner) {
    return CGPoint{corner.x + kIconMiddle.x, corner.y + kIconMiddle.y};
  };
  bench::require(
      difference(patch(phone, home, middle(icon)), patch(phone, now, middle(twin))) < 0.02,
      "the twin's pixels are not the icon's");
  phone.touch(TouchPhase::Ended, finger);
}

Pictures open_and_close(BenchPhone& phone, Figures& figures, Behind behind) {
  Stopwatch watch(phone);
  // A song whose cover has not been shown yet.
  phone.run("print [[SBMediaController sharedInstance] changeTrack:1]");
  phone.run("advance 1");
  phone.settle();
  phone.run("advance 2");
  phone.run("expect isShow == NO");
  Pictures pictures{phone.pixels(), {}};
  const std::uint64_t blurs = phone.compositor().blur_count();
  drag_out(phone, watch, figures.drag, pictures.home);
  watch.frames(figures.present, kPresentFrames);
  // The new cover was blurred when it arrived, not while the panel was fading in over it.
  if (behind == Behind::kArtwork)
    bench::require(phone.compositor().blur_count() == blurs, "a frame of the opening blurred");
  phone.run("expect isShow == YES");
  pictures.panel = phone.pixels();
  bench::require(difference(pictures.home, pictures.panel) > 0.5, "the panel is not visible");
  // Texts fade, controls move down and up again, the cover changes, the ring runs.
  for (const char* line : {"tap on play", "tap on play", "tap on next"}) {
    phone.run(line);
    watch.frames(figures.open, kOpenFrames / 2);
    // Frames are painted faster here than on a screen; give the cover time to be decoded.
    usleep(kCoverTime);
    watch.frames(figures.open, kOpenFrames / 2);
  }
  if (behind == Behind::kArtwork)
    bench::require(difference(pictures.panel, phone.pixels()) > 0.3, "the cover did not change");
  phone.run("button home");
  phone.run("advance 2");
  phone.settle();
  phone.run("expect isShow == NO");
  bench::require(difference(pictures.home, phone.pixels()) < kStatusBarSign,
                 "the home screen is not back");
  return pictures;
}

Pixels measure(BenchPhone& phone, Behind behind) {
  Figures figures;
  Pictures last;
  for (int round = 0; round < kRounds; ++round)
    last = open_and_close(phone, figures, behind);
  const std::string over = behind == Behind::kArtwork ? ", artwork" : ", home";
  bench::print_frames("drag" + over, figures.drag);
  bench::print_frames("present" + over, figures.present);
  bench::print_frames("open panel" + over, figures.open);
  return last.panel;
}

}  // namespace

int main() {
  BenchPhone phone(bench::Pace::kSteppedScreen, R"({ enable = 1; cover = 1; checked = 1; })");
  phone.run("advance 1");
  phone.run("print [[SBMediaController sharedInstance] togglePlayPause]");
  phone.run("advance 2");
  phone.run("expect [[SBMediaController sharedInstance] isPlaying] == YES");
  phone.run("expect [cover image] != nil");
  const Pixels with_artwork = measure(phone, Behind::kArtwork);
  phone.write_preferences(R"({ enable = 1; cover = 0; checked = 1; })");
  phone.run("advance 2");
  phone.run("expect [cover image] == nil");
  const Pixels with_home = measure(phone, Behind::kHome);
  bench::require(difference(with_artwork, with_home) > 0.3, "both panels look the same");
}
