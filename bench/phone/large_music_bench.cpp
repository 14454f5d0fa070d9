#include <cmath>
#include <cstdio>
#include <ctime>
#include <numeric>

#include "bench/phone/frame_series.h"
#include "bench/phone/large_library.h"
#include "bench/phone/own_programs.h"

// Measures Music as a separate process on a phone with 100,000 songs: the time to open it, and the
// cost of a frame of its gliding list for both processes together.

namespace {

using bench::BenchPhone;
using bench::LargeLibrary;
using bench::require;
using bench::Series;
using host::screen::TouchPhase;

constexpr const char* kMusic = "com.apple.Music";
constexpr double kOpening = 0.5;
constexpr int kFlings = 6;
constexpr int kFlingFrames = 7;
constexpr double kFlingStep = 45;
constexpr int kGlideFrames = 60;

/// The CPU time of a whole process, in seconds.
class ProcessTime {
 public:
  explicit ProcessTime(pid_t process) {
    require(clock_getcpuclockid(process, &clock_) == 0, "the process has no clock");
  }
  double seconds() const {
    timespec time;
    clock_gettime(clock_, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  }

 private:
  clockid_t clock_;
};

std::string in_music(BenchPhone& phone, const char* line) {
  phone.run("process Music");
  const std::string answer = phone.run(line);
  phone.run("process SpringBoard");
  return answer;
}

double offset(BenchPhone& phone) {
  double y = 0;
  const std::string text =
      in_music(phone, "print [[[UIApplication sharedApplication] songsTable] contentOffset]");
  require(std::sscanf(text.c_str(), "{%*f, %lf}", &y) == 1, text);
  return y;
}

/// The cost of a frame in both processes, and the cost of a copy of a frame for comparison.
class SharedFrames {
 public:
  SharedFrames(BenchPhone& phone, pid_t music) : watch_(phone), music_(music) {}

  template <class Work>
  void frame(Work work) {
    const double before = music_.seconds();
    const std::size_t painted = here_.frames.size();
    watch_.frame(here_, work);
    if (here_.frames.size() > painted) {
      there_.push_back(music_.seconds() - before);
      const auto first = here_.frames.begin() + static_cast<std::ptrdiff_t>(painted);
      both_.frames.push_back(std::accumulate(first, here_.frames.end(), there_.back()));
    }
  }
  void print() {
    both_.copies = here_.copies;
    bench::print_frames("Music flinging 100,000", both_);
    const bench::Times there = bench::summary(there_);
    std::printf("  of which in Music: median %.3f ms, worst %.3f ms\n", there.median * 1e3,
                there.worst * 1e3);
  }
  std::size_t count() const { return both_.frames.size(); }

 private:
  bench::Stopwatch watch_;
  ProcessTime music_;
  Series here_;
  Series both_;
  std::vector<double> there_;
};

void fling(BenchPhone& phone, SharedFrames& frames) {
  CGPoint finger{187, 560};
  frames.frame([&] { phone.touch(TouchPhase::Began, finger); });
  for (int i = 0; i < kFlingFrames; ++i) {
    finger.y -= kFlingStep;
    frames.frame([&] { phone.touch(TouchPhase::Moved, finger); });
  }
  frames.frame([&] { phone.touch(TouchPhase::Ended, finger); });
  for (int i = 0; i < kGlideFrames; ++i)
    frames.frame([] {});
}

}  // namespace

int main() {
  const LargeLibrary library;
  BenchPhone phone(bench::Pace::kStepped, "{ enable = 1; cover = 1; }", library.music());
  bench::OwnPrograms programs(phone);
  phone.run("advance 1");
  const double opening = bench::seconds_for([&] {
    phone.run("system open " + std::string(kMusic));
    phone.run("advance 1");
  });
  const std::string rows = in_music(
      phone, "print [[[UIApplication sharedApplication] songsTable] numberOfRowsInSection:0]");
  require(std::atoi(rows.c_str()) >= LargeLibrary::kSongs, "Music lists " + rows + " songs");
  bench::print_ratio("Music opened with 100,000 songs / 0.5 s", opening, kOpening, 1);
  SharedFrames frames(phone, programs.process(kMusic));
  const double before = offset(phone);
  for (int i = 0; i < kFlings; ++i)
    fling(phone, frames);
  require(offset(phone) - before > kFlings * 1000, "the list does not move");
  require(frames.count() > kFlings * kFlingFrames, "frames were not painted");
  frames.print();
}
