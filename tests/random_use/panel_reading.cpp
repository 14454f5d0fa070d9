#include "tests/random_use/panel_reading.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>

namespace random_use {
namespace {

constexpr double kClose = 0.01;

std::optional<bool> as_flag(const std::string& answer) {
  if (answer == "YES" || answer == "1") return true;
  if (answer == "NO" || answer == "0") return false;
  return std::nullopt;
}

std::optional<double> as_number(const std::string& answer) {
  double number = 0;
  const auto [end, error] = std::from_chars(answer.data(), answer.data() + answer.size(), number);
  if (error != std::errc() || end != answer.data() + answer.size()) return std::nullopt;
  return number;
}

/// The origin and the size behind one another: `{{0, -517}, {375, 667}}`.
bool read_frame(const std::string& answer, PanelReading& reading) {
  double left = 0;
  double width = 0;
  return std::sscanf(answer.c_str(), "{{%lf, %lf}, {%lf, %lf}}", &left, &reading.top, &width,
                     &reading.height) == 4;
}

bool near(double a, double b) {
  return std::abs(a - b) < kClose;
}

/// Collects what does not hold.
class Findings {
 public:
  void expect(bool holds, const char* what) {
    if (!holds) text_ += (text_.empty() ? "" : ", ") + std::string(what);
  }
  std::string text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

std::optional<PanelReading> read_panel(launcher_e2e::RunningPhone& phone) {
  PanelReading reading;
  bool understood = true;
  const auto flag = [&](const char* expression, bool& into) {
    const auto value = as_flag(phone.ask(fmt::format("print {}", expression)));
    understood &= value.has_value();
    into = value.value_or(false);
  };
  const auto number = [&](const char* expression, double& into) {
    const auto value = as_number(phone.ask(fmt::format("print {}", expression)));
    understood &= value.has_value();
    into = value.value_or(0);
  };
  flag("isShow", reading.is_show);
  flag("isBanner", reading.is_banner);
  flag("showed", reading.showed);
  flag("[music isHidden]", reading.twin_hidden);
  flag("[window isUserInteractionEnabled]", reading.takes_touches);
  number("[cover alpha]", reading.cover_alpha);
  number("[container alpha]", reading.container_alpha);
  understood &= read_frame(phone.ask("print [window frame]"), reading);
  if (!understood) return std::nullopt;
  return reading;
}

Rest rest_of(const PanelReading& reading) {
  if (reading.is_show && reading.is_banner) return Rest::kMixed;
  if (reading.is_show) return reading.takes_touches ? Rest::kOpen : Rest::kHalfBack;
  if (reading.is_banner) return reading.showed ? Rest::kBannerOpen : Rest::kHanging;
  return reading.twin_hidden ? Rest::kClosed : Rest::kHalfOut;
}

const char* name_of(Rest rest) {
  switch (rest) {
    case Rest::kClosed:
      return "closed";
    case Rest::kHalfOut:
      return "half out";
    case Rest::kOpen:
      return "open";
    case Rest::kHalfBack:
      return "half back";
    case Rest::kHanging:
      return "banner hanging";
    case Rest::kBannerOpen:
      return "banner open";
    case Rest::kMixed:
      return "mixed";
  }
  return "unknown";
}

std::string contradiction(const PanelReading& reading) {
  const Rest rest = rest_of(reading);
  Findings found;
  const bool fills_screen = near(reading.top, 0);
  switch (rest) {
    case Rest::kClosed:
      found.expect(near(reading.cover_alpha, 0), "the backdrop is seen");
      found.expect(near(reading.container_alpha, 0), "the pages are seen");
      found.expect(fills_screen, "the window does not fill the screen");
      break;
    case Rest::kHalfOut:
      found.expect(near(reading.container_alpha, 0), "the pages are seen");
      found.expect(reading.cover_alpha < 1 + kClose, "the backdrop is more than opaque");
      break;
    case Rest::kOpen:
      found.expect(!reading.twin_hidden, "the twin is hidden");
      found.expect(near(reading.cover_alpha, 1), "the backdrop is not opaque");
      found.expect(near(reading.container_alpha, 1), "the pages are not opaque");
      found.expect(fills_screen, "the window does not fill the screen");
      break;
    case Rest::kHalfBack:
      found.expect(!reading.twin_hidden, "the twin is hidden");
      found.expect(near(reading.container_alpha, 0), "the pages are seen");
      break;
    case Rest::kHanging:
      found.expect(!reading.twin_hidden, "the twin is hidden");
      found.expect(reading.takes_touches, "it takes no touches");
      found.expect(near(reading.cover_alpha, 1), "the backdrop is not opaque");
      found.expect(near(reading.container_alpha, 1), "the pages are not opaque");
      found.expect(reading.top <= kClose, "it hangs below the top");
      found.expect(reading.top > -reading.height, "it is above the screen");
      break;
    case Rest::kBannerOpen:
      found.expect(reading.takes_touches, "it takes no touches");
      found.expect(near(reading.cover_alpha, 1), "the backdrop is not opaque");
      found.expect(near(reading.container_alpha, 1), "the pages are not opaque");
      found.expect(reading.top <= kClose, "it hangs below the top");
      break;
    case Rest::kMixed:
      found.expect(!reading.twin_hidden, "the twin is hidden");
      break;
  }
  return found.text();
}

}  // namespace random_use
