#include "host/springboard/status_bar/status_bar.h"

#include <utility>

#include "host/runtime/log_line.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/parts/window_levels.h"
#include "platform/UIKit/UIImageView.h"

namespace host::springboard {
namespace {

constexpr CGFloat kSideMargin = 6;
constexpr CGFloat kItemGap = 5;
constexpr CGFloat kStatusFontSize = 12;
constexpr CGFloat kChargeWidth = 44;
// Between the glyphs on both sides.
constexpr CGFloat kNoticeInset = 78;
constexpr double kNoticeLasts = 6;

/// Null before the launch.
StatusBar* status_bar = nullptr;
std::string waiting_notice;

/// Adds a glyph, vertically centred in the bar, and returns the x behind it.
CGFloat add_bar_glyph(UIView bar, NSString name, CGFloat x) {
  const UIImage image = glyph(name);
  if (!image) return x;
  auto view = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithImage(image));
  const CGSize size = image.size();
  view->setFrame({x, (kStatusBarHeight - size.height) / 2, size.width, size.height});
  bar.addSubview(*view);
  return x + size.width;
}

objc::Ref<UILabel> add_text(UIView bar, CGRect frame, NSString font, NSTextAlignment alignment) {
  auto label = make_view<UILabel>(frame);
  label->setFont(UIFont::fontWithName(font, kStatusFontSize));
  label->setTextColor(UIColor::whiteColor());
  label->setTextAlignment(alignment);
  bar.addSubview(*label);
  return label;
}

}  // namespace

StatusBar::StatusBar(const WallClock& clock)
    : clock_(clock),
      window_(make_view<UIWindow>({0, 0, screen_grid().screen.width, kStatusBarHeight})) {
  window_->setWindowLevel(UIWindowLevelStatusBar);
  window_->setUserInteractionEnabled(NO);
  add_left_side();
  add_time();
  add_battery();
  color_contents();
  window_->setHidden(NO);
  status_bar = this;
  if (!waiting_notice.empty()) show_notice(to_ns(std::exchange(waiting_notice, {})));
}

StatusBar::~StatusBar() {
  if (status_bar == this) status_bar = nullptr;
  if (next_minute_ && RunLoop::has_main()) RunLoop::main().remove_timer(*next_minute_);
  window_->setHidden(YES);
}

void StatusBar::add_left_side() const {
  const CGFloat end = add_bar_glyph(*window_, "signal"_ns, kSideMargin);
  add_bar_glyph(*window_, "wifi"_ns, end + kItemGap);
}

void StatusBar::add_time() {
  time_ = add_text(*window_, window_->bounds(), "HelveticaNeue-Medium"_ns, NSTextAlignmentCenter);
  show_time();
}

void StatusBar::set_locked(bool locked) {
  locked_ = locked;
  window_->setWindowLevel(locked ? kLockedStatusBarLevel : UIWindowLevelStatusBar);
  if (locked && !padlock_)
    padlock_ = add_glyph(*window_, "lock"_ns, window_->bounds(), UIColor::whiteColor());
  update_middle();
  color_contents();
}

void StatusBar::update_middle() const {
  const bool has_notice = static_cast<bool>(notice_);
  time_->setHidden(locked_ || has_notice ? YES : NO);
  if (padlock_) padlock_->setHidden(locked_ && !has_notice ? NO : YES);
}

void StatusBar::show_notice(NSString words) {
  if (notice_) notice_->removeFromSuperview();
  CGRect frame = window_->bounds();
  frame.origin.x += kNoticeInset;
  frame.size.width -= 2 * kNoticeInset;
  notice_ = add_text(*window_, frame, "HelveticaNeue-Medium"_ns, NSTextAlignmentCenter);
  notice_->setText(words);
  update_middle();
  color_contents();
  notice_ends_.start(kNoticeLasts, [this] {
    notice_->removeFromSuperview();
    notice_.reset();
    update_middle();
  });
}

bool StatusBar::set_dark(bool dark) {
  const bool before = std::exchange(dark_, dark);
  color_contents();
  return before;
}

// The glyphs take the bar's tint colour. The lock screen is never light.
void StatusBar::color_contents() const {
  const UIColor color = dark_ && !locked_ ? UIColor::blackColor() : UIColor::whiteColor();
  window_->setTintColor(color);
  time_->setTextColor(color);
  charge_->setTextColor(color);
  if (notice_) notice_->setTextColor(color);
}

void StatusBar::add_battery() {
  const UIImage outline = picture("battery-outline"_ns);
  const CGFloat x = window_->bounds().size.width - kSideMargin - outline.size().width;
  add_bar_glyph(*window_, "battery-fill"_ns, x);
  add_bar_glyph(*window_, "battery-outline"_ns, x);
  charge_ = add_text(*window_, {x - kItemGap + 1 - kChargeWidth, 0, kChargeWidth, kStatusBarHeight},
                     "HelveticaNeue"_ns, NSTextAlignmentRight);
  charge_->setText("100%"_ns);
}

void StatusBar::show_time() {
  time_->setText(to_ns(clock_.time_text()));
  const double wait = clock_.seconds_to_next_minute();
  if (wait <= 0) return;
  RunLoop& loop = RunLoop::main();
  next_minute_ = loop.add_timer(loop.now() + wait, 0, [this] { show_time(); });
}

void set_status_bar_locked(bool locked) {
  if (status_bar) status_bar->set_locked(locked);
}

void show_status_notice(std::string_view words) {
  std::string line = on_one_line(words);
  if (!status_bar) {
    waiting_notice = std::move(line);
  } else {
    status_bar->show_notice(to_ns(line));
  }
}

bool set_status_bar_dark(bool dark) {
  return status_bar && status_bar->set_dark(dark);
}

}  // namespace host::springboard
