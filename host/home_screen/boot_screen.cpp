#include "host/home_screen/boot_screen.h"

#include <fmt/format.h>

#include <cmath>

#include "host/home_screen/progress_lines.h"
#include "host/runtime/device_model.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/UIColor.h"

namespace host::launcher {
namespace {

using media_player::MediaProgress;

constexpr CGFloat kGround = 0.07;
constexpr CGFloat kBarWidth = 180;
constexpr CGFloat kBarHeight = 3;
constexpr CGFloat kTextSize = 17;
constexpr CGFloat kCountSize = 13;
constexpr CGFloat kLineHeight = 24;
constexpr CGFloat kTextToBar = 18;
constexpr CGFloat kBarToCount = 12;

NSString text_for(const MediaProgress& progress) {
  if (progress.stage == MediaProgress::Stage::kMakingMusic) return "Composing the demo music"_ns;
  return progress.files.seen == 0 ? "Looking for your music"_ns : "Reading your music"_ns;
}

std::string count_for(const MediaProgress& progress) {
  const std::string done = in_thousands(progress.done());
  if (progress.all() > 0) return fmt::format("{} of {} songs", done, in_thousands(progress.all()));
  return progress.done() > 0 ? done + " songs" : std::string();
}

}  // namespace

BootScreen::BootScreen() {
  const CGFloat width = current_device().width;
  const CGFloat height = current_device().height;
  window_ = springboard::make_view<UIWindow>({0, 0, width, height});
  window_->setBackgroundColor(UIColor::colorWithWhite(kGround, 1));
  const CGFloat bar_top = std::floor(height / 2);
  text_ = springboard::add_label(
      *window_, {0, bar_top - kTextToBar - kLineHeight, width, kLineHeight},
      {"HelveticaNeue-Light"_ns, kTextSize, UIColor::colorWithWhite(1, 0.9)});
  const CGFloat bar_left = std::floor((width - kBarWidth) / 2);
  track_ = springboard::make_view<UIView>({bar_left, bar_top, kBarWidth, kBarHeight});
  track_->setBackgroundColor(UIColor::colorWithWhite(1, 0.15));
  track_->layer().setCornerRadius(kBarHeight / 2);
  bar_ = springboard::make_view<UIView>({0, 0, 0, kBarHeight});
  bar_->setBackgroundColor(UIColor::colorWithWhite(1, 0.9));
  bar_->layer().setCornerRadius(kBarHeight / 2);
  track_->addSubview(*bar_);
  window_->addSubview(*track_);
  count_ =
      springboard::add_label(*window_, {0, bar_top + kBarHeight + kBarToCount, width, kLineHeight},
                             {"HelveticaNeue"_ns, kCountSize, UIColor::colorWithWhite(1, 0.5)});
  window_->setHidden(NO);
}

BootScreen::~BootScreen() {
  window_->setHidden(YES);
}

void BootScreen::show(const MediaProgress& progress) {
  springboard::show_text(*text_, text_for(progress));
  springboard::show_text(*count_, NSString::stringWithUTF8String(count_for(progress).c_str()));
  const bool is_known = progress.all() > 0;
  track_->setHidden(is_known ? NO : YES);
  const double part =
      is_known ? static_cast<double>(progress.done()) / static_cast<double>(progress.all()) : 0;
  const CGFloat width = std::max(kBarHeight, kBarWidth * part);
  bar_->setFrame({0, 0, width, kBarHeight});
}

}  // namespace host::launcher
