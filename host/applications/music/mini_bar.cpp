#include "host/applications/music/mini_bar.h"

#include "host/applications/music/library.h"
#include "host/applications/music/look.h"
#include "host/applications/program/player_remote.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::music {
namespace {

constexpr CGFloat kBarCoverSide = 44;
constexpr CGFloat kCoverMargin = (kMiniBarHeight - kBarCoverSide) / 2;
constexpr CGFloat kTextLeft = kCoverMargin + kBarCoverSide + 10;
constexpr CGFloat kBarButton = 44;
constexpr CGFloat kTitleTop = 10;
constexpr CGFloat kBarTitleHeight = 20;
constexpr CGFloat kBarLineHeight = 16;
constexpr double kSlide = 0.25;

}  // namespace

MiniBar::MiniBar(UIView parent, const PlayerState& player, std::function<void()> tapped)
    : player_(player) {
  const CGSize size = parent.bounds().size;
  bar_ =
      springboard::make_view<UIView>({0, size.height - kMiniBarHeight, size.width, kMiniBarHeight});
  bar_->setBackgroundColor(UIColor::colorWithWhite(0.97, 1));
  bar_->setTransform(CGAffineTransformMakeTranslation(0, kMiniBarHeight));
  parent.addSubview(*bar_);
  build();
  actions_.on_tap(*bar_, std::move(tapped));
  actions_.on_press(*play_, [] { application::PlayerRemote::shared().toggle(); });
}

void MiniBar::build() {
  const CGFloat width = bar_->bounds().size.width;
  springboard::add_plate(*bar_, {0, 0, width, 0.5}, separator_color());
  cover_ = springboard::make_view<UIImageView>(
      {kCoverMargin, kCoverMargin, kBarCoverSide, kBarCoverSide});
  bar_->addSubview(*cover_);
  const CGFloat room = width - kTextLeft - kBarButton - 2 * kCoverMargin;
  title_ = springboard::add_label(
      *bar_, {kTextLeft, kTitleTop, room, kBarTitleHeight},
      {"HelveticaNeue-Medium"_ns, 15, UIColor::blackColor(), NSTextAlignmentLeft});
  artist_ =
      springboard::add_label(*bar_, {kTextLeft, kTitleTop + kBarTitleHeight, room, kBarLineHeight},
                             {"HelveticaNeue"_ns, 12, second_line_color(), NSTextAlignmentLeft});
  play_ = springboard::add_glyph_button(*bar_, "surface-play"_ns,
                                        {width - kBarButton - kCoverMargin,
                                         (kMiniBarHeight - kBarButton) / 2, kBarButton, kBarButton},
                                        UIColor::blackColor());
}

void MiniBar::player_changed() {
  if (shown_song_ != player_.song()) {
    shown_song_ = player_.song();
    const MPMediaItem song = player_.item();
    cover_->setImage(cover_of(song, kBarCoverSide));
    title_->setText(title_of(song));
    artist_->setText(artist_of(song));
  }
  play_->setImage(springboard::glyph(player_.is_playing() ? "surface-pause"_ns : "surface-play"_ns),
                  UIControlStateNormal);
  show_or_hide();
}

void MiniBar::library_changed() {
  // The title of a song that is gone stays while it plays.
  if (player_.item()) shown_song_ = 0;
  player_changed();
}

void MiniBar::set_wanted(bool wanted) {
  wanted_ = wanted;
  show_or_hide();
}

void MiniBar::show_or_hide() {
  const bool is_seen = wanted_ && player_.has_song();
  const CGFloat down = is_seen ? 0 : kMiniBarHeight;
  if (bar_->transform().ty == down) return;
  UIView::animateWithDuration(kSlide, objc::block([bar = *bar_, down] {
                                bar.setTransform(CGAffineTransformMakeTranslation(0, down));
                              }));
}

}  // namespace host::music
