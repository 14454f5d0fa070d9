#include "host/activator/gesture/touch_gestures.h"

#include <cmath>
#include <utility>

#include "host/activator/event/event_kinds.h"

namespace host::activator {
namespace {

constexpr CGFloat kTapHeight = 20;
constexpr CGFloat kStill = 10;
// In seconds: the longest tap, the longest time between two taps, the shortest hold.
constexpr double kTap = 0.35;
constexpr double kBetweenTaps = 0.35;
constexpr double kHold = 0.6;

}  // namespace

TouchGestures::~TouchGestures() {
  end_bar_press();
}

TouchGestures::Claim TouchGestures::touch(int finger, UITouchPhase phase, CGPoint point,
                                          double timestamp) {
  const bool is_over = phase == UITouchPhaseEnded || phase == UITouchPhaseCancelled;
  if (phase == UITouchPhaseBegan) {
    fingers_.insert(finger);
    if (fingers_.size() == 1) began(point, timestamp);
    if (fingers_.size() > 1) give_up();
  } else if (fingers_.size() == 1 && fingers_.contains(finger)) {
    if (phase == UITouchPhaseCancelled) give_up();
    moved(point);
    if (phase == UITouchPhaseEnded) ended(timestamp);
  }
  const Claim claim = taken_ && fingers_.contains(finger) ? Claim::System : Claim::Windows;
  if (is_over) fingers_.erase(finger);
  if (fingers_.empty()) taken_ = false;
  return claim;
}

void TouchGestures::began(CGPoint point, double timestamp) {
  slide_ = EdgeSlide::begin(screen_, point);
  if (first_tap_ && timestamp - *first_tap_ > kBetweenTaps) first_tap_.reset();
  if (point.y > kTapHeight) {
    first_tap_.reset();
    return;
  }
  pressed_ = timestamp;
  begin_bar_press(point);
}

void TouchGestures::begin_bar_press(CGPoint point) {
  bar_press_ = point;
  hold_ = loop_.add_timer(loop_.now() + kHold, 0, [this] {
    hold_ = 0;
    first_tap_.reset();
    bar_press_.reset();
    recognize(kStatusBarHold);
  });
}

void TouchGestures::end_bar_press() {
  if (hold_ != 0) loop_.remove_timer(std::exchange(hold_, 0));
  bar_press_.reset();
}

void TouchGestures::moved(CGPoint point) {
  if (bar_press_ && std::hypot(point.x - bar_press_->x, point.y - bar_press_->y) > kStill) {
    end_bar_press();
    first_tap_.reset();
  }
  if (!slide_ || taken_) return;
  const auto verdict = slide_->move(point);
  if (verdict == EdgeSlide::Verdict::Undecided) return;
  const char* event = slide_->event();
  slide_.reset();
  if (verdict == EdgeSlide::Verdict::SlidIn) recognize(event);
}

void TouchGestures::ended(double timestamp) {
  slide_.reset();
  if (!bar_press_) return;
  end_bar_press();
  if (timestamp - pressed_ > kTap) {
    first_tap_.reset();
  } else if (first_tap_) {
    first_tap_.reset();
    recognize(kStatusBarDoubleTap);
  } else {
    first_tap_ = timestamp;
  }
}

void TouchGestures::give_up() {
  slide_.reset();
  first_tap_.reset();
  end_bar_press();
}

void TouchGestures::recognize(const char* event) {
  if (recognized_(event)) taken_ = true;
}

}  // namespace host::activator
