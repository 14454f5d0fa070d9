#include <cmath>
#include <cstdio>
#include <cstring>

#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"

// What a frame of the phone costs, from the touch to the finished picture, against a plain copy of
// one frame. Both are times of this thread on its core, so that other programs do not count. Frames
// in which nothing was painted are left out: they would only flatter.

namespace {

using bench::BenchPhone;
using host::screen::TouchPhase;
using Pixels = std::vector<std::uint32_t>;

constexpr double kMedianAim = 8;
constexpr double kWorstAim = 24;
constexpr int kRounds = 5;
constexpr int kDragFrames = 45;
// A glide, the icon's way and the fade of the contents.
constexpr int kPresentFrames = 84;
constexpr int kOpenFrames = 100;
constexpr CGPoint kDragStep{1, -5};

/// Times of the frames of one movement, and of copies made in between.
struct Series {
  std::vector<double> frames;
  std::vector<double> copies;
};

class Stopwatch {
 public:
  explicit Stopwatch(BenchPhone& phone) : phone_(phone) {}

  /// One frame that begins with `work`, which is a touch or nothing.
  template <class Work>
  void frame(Series& series, Work work) {
    const int before = phone_.screen().frames();
    const double start = bench::core_seconds();
    work();
    phone_.frame();
    const double seconds = bench::core_seconds() - start;
    if (phone_.screen().frames() > before) series.frames.push_back(seconds);
    copy_frame(series);
  }
  void frames(Series& series, int count) {
    for (int i = 0; i < count; ++i)
      frame(series, [] {});
  }

 private:
  void copy_frame(Series& series) {
    const auto& picture = phone_.screen().picture();
    copy_.resize(static_cast<std::size_t>(picture.stride) * picture.height);
    const double start = bench::core_seconds();
    std::memcpy(copy_.data(), picture.pixels, copy_.size());
    bench::keep(*copy_.data());
    series.copies.push_back(bench::core_seconds() - start);
  }

  BenchPhone& phone_;
  std::vector<unsigned char> copy_;
};

/// Share of the pixels in which two pictures differ noticeably.
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

/// The pixels round a point of the screen, in points.
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

struct Figures {
  Series drag;
  Series present;
  Series open;
};

struct Pictures {
  Pixels home;
  Pixels panel;
};

// The middle of an icon's picture, from its view's corner.
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

Pictures open_and_close(BenchPhone& phone, Figures& figures) {
  Stopwatch watch(phone);
  // A song whose cover has not been on the screen yet.
  phone.run("print [[SBMediaController sharedInstance] changeTrack:1]");
  phone.run("advance 3");
  phone.run("expect isShow == NO");
  Pictures pictures{phone.pixels(), {}};
  drag_out(phone, watch, figures.drag, pictures.home);
  watch.frames(figures.present, kPresentFrames);
  phone.run("expect isShow == YES");
  pictures.panel = phone.pixels();
  bench::require(difference(pictures.home, pictures.panel) > 0.5, "the panel is not to be seen");
  // Texts fade and controls move down and up again, another cover comes, the ring runs.
  for (const char* line : {"tap on play", "tap on play", "tap on next"}) {
    phone.run(line);
    watch.frames(figures.open, kOpenFrames);
  }
  phone.run("button home");
  phone.run("advance 2");
  phone.run("expect isShow == NO");
  bench::require(difference(pictures.home, phone.pixels()) == 0, "the home screen is not back");
  return pictures;
}

void print(const char* what, const char* behind, const Series& series) {
  char name[80];
  const bench::Times frames = bench::summary(series.frames);
  const bench::Times copies = bench::summary(series.copies);
  std::snprintf(name, sizeof name, "%s, %s: median frame / copy", what, behind);
  bench::print_ratio(name, frames.median, copies.median, kMedianAim);
  std::snprintf(name, sizeof name, "%s, %s: worst frame / copy", what, behind);
  bench::print_ratio(name, frames.worst, copies.median, kWorstAim);
}

Pixels measure(BenchPhone& phone, const char* behind) {
  Figures figures;
  Pictures last;
  for (int round = 0; round < kRounds; ++round)
    last = open_and_close(phone, figures);
  print("drag", behind, figures.drag);
  print("present", behind, figures.present);
  print("open panel", behind, figures.open);
  return last.panel;
}

}  // namespace

int main() {
  BenchPhone phone(bench::Pace::kStepped, R"({ cover = 1; checked = 1; })");
  phone.run("advance 1");
  phone.run("print [[SBMediaController sharedInstance] togglePlayPause]");
  phone.run("advance 2");
  phone.run("expect [[SBMediaController sharedInstance] isPlaying] == YES");
  phone.run("expect [cover image] != nil");
  const Pixels with_artwork = measure(phone, "artwork");
  phone.write_preferences(R"({ cover = 0; checked = 1; })");
  phone.run("advance 2");
  phone.run("expect [cover image] == nil");
  const Pixels with_home = measure(phone, "home");
  bench::require(difference(with_artwork, with_home) > 0.3, "both panels look the same");
}
