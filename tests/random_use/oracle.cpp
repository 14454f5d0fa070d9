#include "tests/random_use/oracle.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "tests/random_use/device_lines.h"

namespace random_use {
namespace {

constexpr double kWidth = 375;
// The pause in seconds between two presses of a person.
constexpr double kLook = 0.5;
// Longer than any chain of animations.
constexpr double kRest = 3;
// A message stays for five seconds.
constexpr int kMostWaits = 12;
constexpr int kFewestPresses = 2;
constexpr int kMostPresses = 5;
constexpr int kMostAlerts = 20;
constexpr int kMostSlides = 3;
constexpr int kMostPages = 4;
// In seconds: covers the poll of the settings, and the timer that keeps the drag on the icon.
constexpr double kTakenUp = 0.3;
constexpr double kPanelsWay = 1.5;

constexpr Demand kClosed[] = {
    {"isShow", "NO"},
    {"isBanner", "NO"},
    {"isGrabbing", "NO"},
    {"changeTrack", "NO"},
    {"[music isHidden]", "YES"},
    {"[cover alpha]", "0"},
    {"[container alpha]", "0"},
    {"[window frame]", "{{0, 0}, {375, 667}}"},
    {"[window rootViewController]", "nil"},
};

constexpr Demand kOpen[] = {
    {"isShow", "YES"},
    {"isBanner", "NO"},
    {"isGrabbing", "NO"},
    {"[music isHidden]", "NO"},
    {"[cover alpha]", "1"},
    {"[container alpha]", "1"},
    {"[container isScrollEnabled]", "YES"},
    {"[window isUserInteractionEnabled]", "YES"},
    {"[window frame]", "{{0, 0}, {375, 667}}"},
};

// Reasons that disappear by themselves.
constexpr const char* kPassing[] = {"a notification is shown", "the volume is shown", "is animated",
                                    "frames are still requested"};
// Surfaces that another press of the Home button closes: they were below those already closed.
constexpr const char* kStillOpen[] = {"an application is in front",
                                      "the switcher is open",
                                      "centre is open",
                                      "is brought down",
                                      "being arranged",
                                      "a folder is open"};

/// Returns the values between the outer braces.
std::vector<std::string> values_in(const std::string& answer) {
  std::vector<std::string> values(1);
  int depth = 0;
  for (const char c : answer) {
    if (c == '{' && depth++ == 0) continue;
    if (c == '}' && --depth == 0) break;
    if (c == ',' && depth == 1) {
      values.emplace_back();
    } else if (c != ' ' || !values.back().empty()) {
      values.back() += c;
    }
  }
  return values;
}

/// Numbers differ from run to run.
std::string without_numbers(std::string text) {
  std::erase_if(text, [](unsigned char c) { return std::isdigit(c) || c == '.' || c == '-'; });
  return text;
}

}  // namespace

std::optional<Fault> Oracle::judge() {
  let_go();
  get_out();
  if (auto fault = at_home()) return fault;
  return drag_and_close();
}

void Oracle::let_go() {
  const auto fingers = phone_.fingers();
  for (const std::string& finger : fingers)
    phone_.say(fmt::format("touch {} ended 187 300", finger));
  const auto buttons = phone_.buttons();
  for (const std::string& button : buttons)
    phone_.say(fmt::format("button {} up", button));
  phone_.wait(kLook);
}

std::string Oracle::unrest() {
  return phone_.ask("rest");
}

bool Oracle::sees(std::string_view words) {
  return unrest().find(words) != std::string::npos;
}

void Oracle::get_out() {
  wake();
  answer_alerts();
  unlock();
  answer_alerts();
  come_home();
  wait_for_stillness();
}

void Oracle::wake() {
  if (!sees("the display is off")) return;
  phone_.say("button home");
  phone_.wait(kLook);
}

void Oracle::answer_alerts() {
  for (int left = kMostAlerts; left > 0 && sees("UIWindow of level 2000"); --left) {
    phone_.say("tap 187 374");
    phone_.wait(kLook);
  }
}

/// The Home button first closes a surface that covers the lock screen.
void Oracle::unlock() {
  for (int left = kMostSlides; left > 0 && sees("the phone is locked"); --left) {
    phone_.say("button home");
    phone_.wait(kPanelsWay);
    phone_.say("drag 60 560 330 560 0.3");
    phone_.wait(kLook);
  }
}

void Oracle::come_home() {
  for (int press = 1; press <= kMostPresses; ++press) {
    phone_.say("button home");
    phone_.wait(kLook);
    if (press < kFewestPresses) continue;
    const std::string seen = unrest();
    const bool is_home =
        std::none_of(std::begin(kStillOpen), std::end(kStillOpen),
                     [&](auto words) { return seen.find(words) != std::string::npos; });
    if (is_home) return;
  }
}

void Oracle::wait_for_stillness() {
  phone_.wait(kRest);
  for (int left = kMostWaits; left > 0; --left) {
    const std::string seen = unrest();
    const bool passes = std::any_of(std::begin(kPassing), std::end(kPassing), [&](auto words) {
      return seen.find(words) != std::string::npos;
    });
    if (!passes) return;
    phone_.wait(kLook);
  }
}

std::optional<Fault> Oracle::process() {
  std::string text = phone_.fault();
  if (text.empty()) return std::nullopt;
  return Fault{without_numbers(text), text, {}};
}

std::optional<Fault> Oracle::rests() {
  const std::string seen = unrest();
  if (seen == "ok") return process();
  return Fault{without_numbers(seen.substr(0, seen.find(';'))), seen, {"rest"}};
}

std::optional<Fault> Oracle::holds(const char* when, std::span<const Demand> demands) {
  std::string asked;
  for (const Demand& demand : demands)
    asked += (asked.empty() ? "" : ", ") + std::string(demand.expression);
  const std::string answer = phone_.ask(fmt::format("print {{{}}}", asked));
  if (auto fault = process()) return fault;
  const auto values = values_in(answer);
  if (values.size() != demands.size()) return Fault{when, "the phone answers " + answer, {}};
  std::optional<Fault> fault;
  for (std::size_t i = 0; i < demands.size(); ++i) {
    if (values[i] == demands[i].value) continue;
    if (!fault) fault = Fault{fmt::format("{}: {}", when, demands[i].expression), when, {}};
    fault->text += fmt::format("; {} is {}", demands[i].expression, values[i]);
    fault->expectations.push_back(
        fmt::format("expect {} == {}", demands[i].expression, demands[i].value));
  }
  return fault;
}

std::optional<Fault> Oracle::at_home() {
  if (auto fault = process()) return fault;
  if (auto fault = holds("after coming home", kClosed)) return fault;
  return rests();
}

/// Moves the Music icon to the visible page or the dock, where a finger can reach it.
void Oracle::bring_the_icon_back() {
  double x = 0;
  for (int left = kMostPages; left > 0; --left) {
    const std::string place = phone_.ask("where musicIcon");
    if (std::sscanf(place.c_str(), "{%lf", &x) != 1) {
      phone_.say("system folder out com.apple.Music");
      phone_.wait(kLook);
    } else if (x < 0 || x > kWidth) {
      phone_.say(x < 0 ? "drag 40 560 330 560 0.2" : "drag 330 560 40 560 0.2");
      phone_.wait(kLook);
    } else {
      return;
    }
  }
}

std::optional<Fault> Oracle::drag_and_close() {
  bring_the_icon_back();
  phone_.say(good_settings());
  phone_.wait(kTakenUp);
  phone_.say("drag on musicIcon 187 200 0.3");
  phone_.wait(kPanelsWay);
  if (auto fault = holds("after the drag", kOpen)) return fault;
  phone_.say("button home");
  phone_.wait(kPanelsWay);
  return holds("after closing", kClosed);
}

}  // namespace random_use
