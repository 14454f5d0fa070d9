#include <array>

#include "bench/phone/frame_series.h"
#include "host/process/device_images.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UIWindow.h"

// Measures a frame of the settings' pages while something moves on them, relative to a plain copy
// of one frame. The pages are shown in a window of the home screen's process, which draws them like
// their own process.

namespace {

using bench::BenchPhone;
using bench::Series;
using bench::Stopwatch;
using host::screen::TouchPhase;

constexpr CGRect kScreen{0, 0, 375, 667};
// Above everything that the home screen shows.
constexpr CGFloat kLevel = 1500;
constexpr int kShimmerFrames = 300;
constexpr int kWaveFrames = 320;
constexpr int kSwipes = 8;
constexpr int kFingerFrames = 15;
constexpr int kGlideFrames = 45;
constexpr CGFloat kFingerStep = 18;

/// A new object of one of the extension's classes.
template <class T>
T make(const char* name) {
  const objc::Class cls = objc_getClass(name);
  bench::require(cls != nullptr, name);
  return objc::send<T>(objc::send<NSObject>(objc::Object(cls), "alloc"_sel), "init"_sel);
}

/// The settings' first page on the screen, and the pages that it opens.
class SettingsPages {
 public:
  explicit SettingsPages(BenchPhone& phone)
      : phone_(phone), window_(UIWindow::alloc().initWithFrame(kScreen)) {
    stack_ = UINavigationController::alloc().initWithRootViewController(
        make<UIViewController>("SonavueSettingsController"));
    window_.setWindowLevel(kLevel);
    window_.setRootViewController(stack_);
    window_.setHidden(NO);
    phone_.run("advance 1");
  }

  void shimmer(Series& series) {
    Stopwatch watch(phone_);
    const auto before = phone_.pixels();
    watch.frames(series, kShimmerFrames / 2);
    bench::require(phone_.pixels() != before, "nothing shimmers");
    watch.frames(series, kShimmerFrames / 2);
  }

  void wave(Series& series) {
    const auto style = make<UIViewController>("styleController");
    stack_.pushViewController(style, NO);
    phone_.run("advance 1");
    objc::send<>(style, "showFirstPage"_sel);
    phone_.run("advance 2");
    style_ = style;
    Stopwatch watch(phone_);
    const auto before = phone_.pixels();
    watch.frames(series, kWaveFrames / 2);
    bench::require(phone_.pixels() != before, "there is no wave");
    watch.frames(series, kWaveFrames / 2);
  }

  void swipe(Series& series) {
    objc::send<>(style_, "showSetup"_sel);
    phone_.run("advance 2");
    Stopwatch watch(phone_);
    for (int page = 0; page < kSwipes; ++page) {
      const auto before = phone_.pixels();
      CGPoint finger{340, 250};
      phone_.touch(TouchPhase::Began, finger);
      for (int i = 0; i < kFingerFrames; ++i) {
        finger.x -= kFingerStep;
        watch.frame(series, [&] { phone_.touch(TouchPhase::Moved, finger); });
      }
      phone_.touch(TouchPhase::Ended, finger);
      watch.frames(series, kGlideFrames);
      bench::require(phone_.pixels() != before, "no page was turned");
    }
  }

 private:
  BenchPhone& phone_;
  UIWindow window_;
  UINavigationController stack_;
  UIViewController style_;
};

void print(const char* what, const Series& series, std::size_t least) {
  bench::require(series.frames.size() >= least, "frames were not painted");
  bench::print_frames(what, series);
}

}  // namespace

int main() {
  // The extension makes its pages where their base class is: it is loaded after it.
  host::process::start_program(std::array{host::process::kPreferences});
  BenchPhone phone(bench::Pace::kStepped, R"({ enable = 0; firstBoot = 1; checked = 1; })");
  phone.run("advance 1");
  SettingsPages pages(phone);
  Series shimmer;
  pages.shimmer(shimmer);
  print("settings, shimmer", shimmer, kShimmerFrames / 2);
  Series wave;
  pages.wave(wave);
  print("settings, wave of the hint", wave, kWaveFrames / 2);
  Series swipe;
  pages.swipe(swipe);
  print("settings, page swipe", swipe, kSwipes * kFingerFrames);
}
