#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include "bench/phone/bench_phone.h"
#include "bench/screen/page.h"
#include "bench/screen/vnc.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"

// Shows a phone in use to a viewer in another process, in real time: on its page for browsers, and
// through libvncserver. Prints the frames that the phone draws, the updates that the viewer gets,
// what is sent, and the processor time of the phone's process beyond drawing, while an icon is
// dragged, while a list glides, and at rest. In the end the viewer must see what the phone shows.

namespace {

using bench::BenchPhone;
using bench::require;
using bench::Seen;
using bench::Viewer;
using host::RunLoop;
using host::screen::TouchPhase;

// In seconds.
constexpr double kMovement = 5;
// What has been moved is sent exactly afterwards; this belongs to its cost.
constexpr double kAfterwards = 1.5;
constexpr double kSettling = 2;
constexpr double kMostWaiting = 10;
constexpr CGPoint kIcon{57, 332};

struct Counts {
  double frames = 0;
  double updates = 0;
  double bytes = 0;
  double core = 0;
};

Counts operator-(const Counts& a, const Counts& b) {
  return {a.frames - b.frames, a.updates - b.updates, a.bytes - b.bytes, a.core - b.core};
}

/// The phone and who looks at it.
class Watched {
 public:
  Watched(BenchPhone& phone, const Seen* seen, double tolerance)
      : phone_(phone), seen_(seen), tolerance_(tolerance) {}

  BenchPhone& phone() const { return phone_; }
  /// Counts while `step` is called with the time in seconds for every frame.
  Counts counts_of(const std::function<void(double)>& step) const {
    RunLoop& loop = RunLoop::main();
    const Counts before = now();
    const double begin = loop.now();
    const auto timer = loop.add_timer(begin, RunLoop::kFrame, [&] { step(loop.now() - begin); });
    phone_.live(kMovement);
    loop.remove_timer(timer);
    const Counts moved = now() - before;
    phone_.live(kAfterwards);
    const Counts all = now() - before;
    return {moved.frames, moved.updates, all.bytes, all.core};
  }
  Counts counts_of_rest() const {
    const Counts before = now();
    phone_.live(kMovement);
    return now() - before;
  }
  void require_same_picture(const char* when) const {
    if (!seen_) return;
    for (double waited = 0; waited < kMostWaiting; waited += kSettling) {
      if (mean_difference() <= tolerance_) return;
      phone_.live(kSettling);
    }
    require(false, std::string("the viewer sees another picture ") + when);
  }

 private:
  Counts now() const {
    return {static_cast<double>(phone_.screen().frames()),
            seen_ ? static_cast<double>(seen_->updates) : 0,
            seen_ ? static_cast<double>(seen_->bytes) : 0, bench::process_seconds()};
  }
  double mean_difference() const {
    const auto pixels = phone_.pixels();
    require(pixels.size() == seen_->pixels.size(), "the screen has another size");
    double sum = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      for (int shift = 0; shift < 24; shift += 8)
        sum += std::abs(static_cast<int>(pixels[i] >> shift & 255) -
                        static_cast<int>(seen_->pixels[i] >> shift & 255));
    }
    return sum / (3.0 * static_cast<double>(pixels.size()));
  }

  BenchPhone& phone_;
  const Seen* const seen_;
  const double tolerance_;
};

struct Figures {
  Counts drag;
  Counts fling;
  Counts rest;
};

Counts drag(const Watched& watched) {
  BenchPhone& phone = watched.phone();
  phone.touch(TouchPhase::Began, kIcon);
  phone.live(0.2);
  const Counts counts = watched.counts_of([&phone](double time) {
    phone.touch(TouchPhase::Moved,
                {187 + 130 * std::sin(2 * time), 400 + 150 * std::cos(3 * time)});
  });
  phone.run("expect [music isHidden] == NO");
  watched.require_same_picture("after the drag");
  phone.touch(TouchPhase::Ended, kIcon);
  phone.live(kSettling);
  phone.run("expect isShow == YES");
  return counts;
}

/// Flings the list up and down in turns.
class Flings {
 public:
  explicit Flings(BenchPhone& phone) : phone_(phone) {}

  void step(double time) {
    constexpr int kTurn = 60;
    constexpr int kTouched = 8;
    constexpr double kLast = 0.5;
    constexpr double kStep = 30;
    constexpr CGPoint kStart{187, 380};
    const int frame = static_cast<int>(time / RunLoop::kFrame);
    const double direction = frame / kTurn % 2 == 0 ? -1 : 1;
    const CGPoint finger{kStart.x, kStart.y + direction * kStep * (frame % kTurn)};
    // The last one glides until the end.
    if (frame % kTurn < kTouched && time < kMovement - kLast) {
      phone_.touch(is_down_ ? TouchPhase::Moved : TouchPhase::Began, finger);
      is_down_ = true;
      last_ = finger;
    } else if (is_down_) {
      phone_.touch(TouchPhase::Ended, last_);
      is_down_ = false;
    }
  }

 private:
  BenchPhone& phone_;
  CGPoint last_;
  bool is_down_ = false;
};

Counts fling(const Watched& watched) {
  BenchPhone& phone = watched.phone();
  phone.run("print [container setContentOffset:{375, 0}]");
  phone.run("print [tableView setContentOffset:{0, 0}]");
  phone.live(kSettling);
  Flings flings(phone);
  std::string highest = phone.run("print [tableView contentOffset]");
  const std::string before = highest;
  const Counts counts = watched.counts_of([&](double time) {
    flings.step(time);
    if (time < 1) highest = phone.run("print [tableView contentOffset]");
  });
  require(highest != before, "the list does not move");
  watched.require_same_picture("after the flings");
  phone.run("button home");
  phone.live(kSettling);
  phone.run("expect isShow == NO");
  return counts;
}

Figures figures_of(const Watched& watched) {
  watched.phone().live(kSettling);
  watched.require_same_picture("at first");
  Figures figures;
  figures.drag = drag(watched);
  figures.fling = fling(watched);
  watched.require_same_picture("of the home screen");
  watched.phone().live(kSettling);
  do {
    // The clock in the status bar may change once.
    figures.rest = watched.counts_of_rest();
  } while (figures.rest.frames > 0);
  return figures;
}

/// What an update costs the phone's process beyond drawing, in seconds.
double cost_of_update(const Counts& counts, const Counts& alone) {
  return (counts.core - counts.frames * alone.core / alone.frames) / counts.updates;
}

void print_line(const char* who, const Counts& counts, const Counts& alone) {
  std::printf("  %-16s %9.1f %9.1f %11.1f %9.0f %12.2f\n", who, counts.frames / kMovement,
              counts.updates / kMovement, counts.bytes / counts.updates / 1000,
              counts.bytes / kMovement / 1000, cost_of_update(counts, alone) * 1e3);
}

void print(const char* what, const Counts& alone, const Counts& page, const Counts* vnc) {
  std::printf("%-18s %9s %9s %11s %9s %12s\n", what, "frames/s", "updates/s", "kB/update", "kB/s",
              "ms/update");
  std::printf("  %-16s %9.1f %9s %11s %9s %12.2f a frame\n", "drawing alone",
              alone.frames / kMovement, "", "", "", alone.core / alone.frames * 1e3);
  print_line("page", page, alone);
  if (!vnc) return;
  print_line("libvncserver", *vnc, alone);
  std::printf("  %-16s %9.2f %9.2f %11.2f %9.2f %12.2f\n", "page / it", page.frames / vnc->frames,
              page.updates / vnc->updates, page.bytes / page.updates / (vnc->bytes / vnc->updates),
              page.bytes / vnc->bytes, cost_of_update(page, alone) / cost_of_update(*vnc, alone));
}

void print_rest(const char* who, const Counts& counts) {
  std::printf("  %-16s %9.0f bytes, %.2f %% of a core\n", who, counts.bytes,
              100 * counts.core / kMovement);
}

/// What a copy of the screen takes here and now, by which figures of different machines compare.
void print_copy(const BenchPhone& phone) {
  constexpr int kCopies = 50;
  const auto pixels = phone.pixels();
  auto copy = pixels;
  std::vector<double> times;
  for (int i = 0; i < kCopies; ++i) {
    const double start = bench::core_seconds();
    std::memcpy(copy.data(), pixels.data(), pixels.size() * sizeof pixels.front());
    bench::keep(*copy.data());
    times.push_back(bench::core_seconds() - start);
  }
  std::printf("a copy of the screen: %.3f ms\n", bench::summary(times).median * 1e3);
}

void require_movement(const Counts& counts, const char* what) {
  require(counts.frames > kMovement && counts.updates > kMovement && counts.bytes > 0, what);
}

Figures measure(BenchPhone& phone, bench::ScreenServer& server, Viewer& viewer, double tolerance) {
  phone.screen().pass_on_to(&server.screen());
  viewer.look_at(server.address());
  const Figures figures = figures_of({phone, &viewer.seen(), tolerance});
  require_movement(figures.drag, "the drag is not seen");
  require_movement(figures.fling, "the flings are not seen");
  phone.screen().pass_on_to(nullptr);
  viewer.look_away();
  return figures;
}

}  // namespace

int main() {
  Viewer page_viewer(&bench::look_as_page);
  Viewer vnc_viewer(&bench::look_as_vnc);
  BenchPhone phone(bench::Pace::kReal, "{ enable = 1; cover = 0; checked = 1; }");
  phone.live(kSettling);
  const Figures alone = figures_of({phone, nullptr, 0});
  const auto page_server = bench::serve_page(phone.input());
  // What rests is exact.
  const Figures page = measure(phone, *page_server, page_viewer, 0);
  Figures vnc;
  const auto vnc_server = bench::serve_vnc();
  // The mean levels that a picture is off after JPEG.
  if (vnc_server) vnc = measure(phone, *vnc_server, vnc_viewer, 3);
  print("drag", alone.drag, page.drag, vnc_server ? &vnc.drag : nullptr);
  print("fling", alone.fling, page.fling, vnc_server ? &vnc.fling : nullptr);
  std::puts("rest");
  print_rest("phone alone", alone.rest);
  print_rest("page", page.rest);
  if (vnc_server) print_rest("libvncserver", vnc.rest);
  if (page.rest.bytes > 0) std::puts("the page is sent something at rest   MISSED");
  print_copy(phone);
  if (!vnc_server) std::puts("libvncserver was not installed when this was built");
}
