#include "host/recording/recorder.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/console/names.h"

namespace host::recording {
namespace {

using console::kButtons;
using console::kPhases;
using console::name_of;
using screen::TouchPhase;

constexpr int kMostFingers = 5;
// What `tap` does.
constexpr double kTapHold = 0.05;
// The console waits no longer at a time.
constexpr double kLongestWait = 24 * 60 * 60;

double rounded(double value, double parts) {
  return std::round(value * parts) / parts + 0.0;
}

/// The key for a character that the console cannot type at the ends of a text.
std::string_view key_for(char character) {
  if (character == ' ') return "space";
  if (character == '\t') return "tab";
  if (character == '\n' || character == '\r') return "return";
  return {};
}

}  // namespace

int Recorder::number_of(int finger, TouchPhase phase) {
  if (phase == TouchPhase::Began) {
    int number = 1;
    const auto is_taken = [&](const auto& known) { return known.second == number; };
    while (std::any_of(fingers_.begin(), fingers_.end(), is_taken))
      ++number;
    fingers_[finger] = number;
    return number;
  }
  const auto known = fingers_.find(finger);
  if (known == fingers_.end()) return 0;
  const int number = known->second;
  if (phase != TouchPhase::Moved) fingers_.erase(known);
  return number;
}

void Recorder::touch(int finger, TouchPhase phase, CGPoint point, double now) {
  const int number = number_of(finger, phase);
  if (number == 0 || number > kMostFingers) return;
  put_text();
  touches_.push_back({number, phase, point, now});
  if (fingers_.empty()) put_touches();
}

void Recorder::wheel(CGPoint point, CGPoint by, screen::WheelKind kind, double now) {
  line(fmt::format("wheel {} {} {}{}", written(point), by.x, by.y,
                   kind == screen::WheelKind::Precise ? " precise" : ""),
       now);
}

void Recorder::right_click(CGPoint point, double now) {
  line("right-click " + written(point), now);
}

void Recorder::press(screen::Button button, double now) {
  line(fmt::format("button {}", name_of(kButtons, button)), now);
}

void Recorder::button(screen::Button button, screen::ButtonPhase phase, double now) {
  const bool is_down = phase == screen::ButtonPhase::Down;
  line(fmt::format("button {} {}", name_of(kButtons, button), is_down ? "down" : "up"), now);
}

void Recorder::key(std::string_view name, double now) {
  line(fmt::format("key {}", name), now);
}

void Recorder::type(std::string_view text, double now) {
  put_touches();
  if (now - last_typed_ > fidelity_.typing) put_text();
  if (text_.empty()) first_typed_ = now;
  text_ += text;
  last_typed_ = now;
  if (fidelity_.typing == 0) put_text();
}

void Recorder::line(std::string_view text, double now) {
  end(now);
  put_(std::string(text));
}

void Recorder::end(double now) {
  put_text();
  put_touches();
  wait_until(now);
}

void Recorder::put_text() {
  if (text_.empty()) return;
  wait_until(first_typed_);
  std::string_view left = text_;
  while (!left.empty()) {
    if (const auto key = key_for(left.front()); !key.empty()) {
      put_(fmt::format("key {}", key));
      left.remove_prefix(1);
      continue;
    }
    std::string_view part = left.substr(0, left.find_first_of("\t\n\r"));
    part = part.substr(0, part.find_last_not_of(' ') + 1);
    put_(fmt::format("type {}", part));
    left.remove_prefix(part.size());
  }
  text_.clear();
}

void Recorder::put_touches() {
  const std::vector<Touch> touches = std::exchange(touches_, {});
  const auto is_first = [&](const Touch& touch) { return touch.finger == touches[0].finger; };
  if (std::all_of(touches.begin(), touches.end(), is_first))
    return put_steps(steps_of(touches, fidelity_));
  // Of several fingers each report is written: the console moves one at a time.
  for (const Touch& touch : touches)
    put_step({touch, false});
}

void Recorder::put_steps(const std::vector<Step>& steps) {
  const std::string line = one_line_for(steps);
  if (line.empty()) {
    for (const Step& step : steps)
      put_step(step);
    return;
  }
  wait_until(steps.front().touch.time);
  written_ += rounded_seconds(steps.back().touch.time - steps.front().touch.time);
  put_(line);
}

void Recorder::put_step(const Step& step) {
  const Touch& touch = step.touch;
  if (!step.glides) wait_until(touch.time);
  std::string text = touch.finger == 1 ? "touch " : fmt::format("touch {} ", touch.finger);
  text += fmt::format("{} {}", name_of(kPhases, touch.phase), written(touch.point));
  if (step.glides) text += fmt::format(" {}", spend_until(touch.time));
  put_(text);
}

std::string Recorder::one_line_for(const std::vector<Step>& steps) const {
  if (steps.size() < 2) return {};
  const Touch& first = steps.front().touch;
  const Touch& last = steps.back().touch;
  const bool is_whole =
      first.finger == 1 && first.phase == TouchPhase::Began && last.phase == TouchPhase::Ended;
  if (!is_whole) return {};
  const std::string from = written(first.point);
  const std::string to = written(last.point);
  const double seconds = rounded_seconds(last.time - first.time);
  if (steps.size() == 2 && from == to && seconds == kTapHold) return "tap " + from;
  const Touch& before = steps[steps.size() - 2].touch;
  const bool is_drag = steps.size() == 3 && steps[1].glides && written(before.point) == to &&
                       rounded_seconds(last.time - before.time) == 0;
  return is_drag ? fmt::format("drag {} {} {}", from, to, seconds) : std::string();
}

double Recorder::rounded_seconds(double seconds) const {
  return rounded(seconds, fidelity_.parts_of_second);
}

double Recorder::seconds_until(double time) const {
  return std::max(0.0, rounded_seconds(time - start_ - written_));
}

double Recorder::spend_until(double time) {
  const double seconds = seconds_until(time);
  written_ += seconds;
  return seconds;
}

void Recorder::wait_until(double time) {
  while (seconds_until(time) > 0)
    put_(fmt::format("advance {}", spend_until(std::min(time, start_ + written_ + kLongestWait))));
}

std::string Recorder::written(CGPoint point) const {
  return fmt::format("{} {}", rounded(point.x, fidelity_.parts_of_point),
                     rounded(point.y, fidelity_.parts_of_point));
}

}  // namespace host::recording
