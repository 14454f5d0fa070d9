#include "host/springboard/surfaces/lock_screen_panel.h"

#include <algorithm>

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/wallpaper.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/surfaces/notification_row.h"

namespace host::springboard {
namespace {

constexpr CGFloat kClockTop = 34;
constexpr CGFloat kClockHeight = 84;
constexpr CGFloat kClockSize = 80;
constexpr CGFloat kDateHeight = 22;
constexpr CGFloat kLockDateSize = 17;
constexpr CGFloat kPlaybackTop = kClockTop + kClockHeight + kDateHeight + 18;
constexpr CGFloat kWidestLockPlayback = 420;
constexpr CGFloat kLockMargin = 24;
constexpr CGFloat kTextHeight = 40;
constexpr CGFloat kTextBottom = 84;
constexpr CGFloat kLockGap = 18;
constexpr CGFloat kLockShade = 0.28;
constexpr CGFloat kFarEnoughToUnlock = 0.4;
constexpr CGFloat kFastEnoughToUnlock = 500;
constexpr double kReturn = 0.45;
constexpr CGFloat kLockLineAlpha = 0.25;

}  // namespace

LockScreenPanel::LockScreenPanel(UIView window, const WallClock& clock,
                                 std::function<void()> unlock)
    : clock_(clock), unlock_(std::move(unlock)), view_(make_view<UIView>(window.bounds())) {
  window.addSubview(*view_);
  add_wallpaper();
  content_ = make_view<UIView>(view_->bounds());
  view_->addSubview(*content_);
  add_clock();
  add_playback();
  const CGSize screen = view_->bounds().size;
  list_ = make_view<UIView>({});
  content_->addSubview(*list_);
  text_.emplace(*content_, CGRect(0, screen.height - kTextBottom, screen.width, kTextHeight));
  add_grabber(*content_, {screen.width / 2, screen.height - 8}, UIColor::colorWithWhite(1, 0.4));
  actions_.on_pan(
      *view_, [this](UIPanGestureRecognizer pan) { slid(pan); },
      [](UITouch touch) { return !touch.view().isKindOfClass(SBSurfaceSlider::cls()); });
}

LockScreenPanel::~LockScreenPanel() {
  sleep();
  view_->removeFromSuperview();
}

void LockScreenPanel::add_wallpaper() {
  springboard::add_wallpaper(*view_);
  shade_ = add_plate(*view_, view_->bounds(), UIColor::colorWithWhite(0, kLockShade));
}

void LockScreenPanel::add_clock() {
  const CGFloat width = view_->bounds().size.width;
  time_ = add_label(*content_, {0, kClockTop, width, kClockHeight},
                    {"HelveticaNeue-UltraLight"_ns, kClockSize, UIColor::whiteColor()});
  date_ = add_label(*content_, {0, kClockTop + kClockHeight, width, kDateHeight},
                    {"HelveticaNeue"_ns, kLockDateSize, UIColor::whiteColor()});
}

void LockScreenPanel::add_playback() {
  const CGFloat screen = view_->bounds().size.width;
  const CGFloat width = std::min(screen - 2 * kLockMargin, kWidestLockPlayback);
  artwork_ = make_view<UIImageView>({});
  artwork_->setContentMode(UIViewContentModeScaleAspectFit);
  content_->addSubview(*artwork_);
  const CGRect frame{(screen - width) / 2, kPlaybackTop, width, PlaybackView::kHeight};
  playback_.emplace(*content_, frame, Ink::kLight,
                    [this](const NowPlaying& playing) { show_playing(playing); });
  playback_->view().setHidden(YES);
}

void LockScreenPanel::show_playing(const NowPlaying& playing) {
  // A song that was paused before the phone locked is not shown; one paused here stays visible.
  const bool shows = playing.has_track && (playing.is_playing || shows_playback());
  const bool is_new = artwork_->image() != *playing.artwork;
  if (is_new) artwork_->setImage(*playing.artwork);
  if (shows == shows_playback() && !is_new) return;
  playback_->view().setHidden(shows ? NO : YES);
  arrange();
}

void LockScreenPanel::arrange() {
  const CGSize screen = view_->bounds().size;
  const bool plays = shows_playback();
  const CGFloat top = kPlaybackTop + (plays ? PlaybackView::kHeight + kLockGap : 0);
  const CGFloat room = screen.height - kTextBottom - kLockGap - top;
  const CGFloat side = std::min({room, screen.width - 2 * kLockMargin, kWidestLockPlayback});
  artwork_->setFrame({(screen.width - side) / 2, top + (room - side) / 2, side, side});
  artwork_->setHidden(plays && !has_messages_ ? NO : YES);
  list_->setFrame({0, top, screen.width, std::max<CGFloat>(room, 0)});
  list_->setClipsToBounds(YES);
}

void LockScreenPanel::show(const std::vector<Notification>& messages) {
  for (const UIView row : list_->subviews().of<UIView>())
    row.removeFromSuperview();
  has_messages_ = !messages.empty();
  const CGFloat pixel = 1 / UIScreen::mainScreen().scale();
  const CGFloat width = view_->bounds().size.width;
  CGFloat top = 0;
  for (const Notification& message : messages) {
    add_plate(*list_, {15, top, width - 15, pixel}, UIColor::colorWithWhite(1, kLockLineAlpha));
    add_notification_row(*list_, {0, top, width, kNotificationRowHeight}, message);
    top += kNotificationRowHeight;
  }
  if (has_messages_)
    add_plate(*list_, {15, top, width - 15, pixel}, UIColor::colorWithWhite(1, kLockLineAlpha));
  arrange();
}

void LockScreenPanel::wake() {
  if (awake_) return;
  awake_ = true;
  show_time();
  playback_->start_watching();
  text_->start_shimmer();
}

void LockScreenPanel::sleep() {
  awake_ = false;
  playback_->stop_watching();
  text_->stop_shimmer();
  if (next_minute_ && RunLoop::has_main()) RunLoop::main().remove_timer(*next_minute_);
  next_minute_.reset();
}

void LockScreenPanel::show_time() {
  show_text(*time_, to_ns(clock_.time_text()));
  show_text(*date_, to_ns(clock_.date_text()));
  const double wait = clock_.seconds_to_next_minute();
  if (wait <= 0) return;
  RunLoop& loop = RunLoop::main();
  next_minute_ = loop.add_timer(loop.now() + wait, 0, [this] { show_time(); });
}

void LockScreenPanel::slid(UIPanGestureRecognizer pan) {
  const CGFloat width = view_->bounds().size.width;
  const CGFloat way = std::max<CGFloat>(pan.translationInView(nil).x, 0);
  switch (pan.state()) {
    case UIGestureRecognizerStateBegan:
    case UIGestureRecognizerStateChanged:
      content_->setFrame({{way, 0}, view_->bounds().size});
      break;
    case UIGestureRecognizerStateEnded:
      if (way > width * kFarEnoughToUnlock ||
          (way > 0 && pan.velocityInView(nil).x > kFastEnoughToUnlock))
        return unlock_();
      [[fallthrough]];
    default:
      slide_back();
  }
}

void LockScreenPanel::slide_back() const {
  UIView::animateWithDuration(
      kReturn, 0, 0.9, 0, UIViewAnimationOptionAllowUserInteraction,
      objc::block([content = *content_, view = *view_] { content.setFrame(view.bounds()); }),
      objc::Block<void(BOOL)>());
}

}  // namespace host::springboard
