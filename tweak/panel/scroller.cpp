#include "tweak/panel/scroller.h"

#include "objc/ref.h"
#include "platform/UIKit/UIScreen.h"
#include "tweak/banner/banner_layout.h"
#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"

namespace sonavue {
namespace {

constexpr CGFloat kPages = 3;
constexpr int kFirstSinkingGeneration = 5;

// The rise is the square root of the distance divided by this; the controls' fall is multiplied by
// it.
CGFloat divisor() {
  const CGFloat width = UIScreen::mainScreen().bounds().size.width;
  return width * 2 == 828 || width * 3 == 1080 ? 4.0 : 3.5;
}

CGFloat centred(UIView view, CGFloat offset) {
  return offset + (screen_width() - view.frame().size.width) / 2;
}

// The controls are on the pages and are moved with the offset, so that they stay in place on the
// screen.
void hold_controls(CGFloat offset) {
  const CGFloat sixth = screen_width() / 6;
  move_to_x(next, offset + sixth + 2 * screen_width() / 3 - kSkipSize.width);
  move_to_x(play, centred(play, offset));
  move_to_x(back, offset + sixth);
  move_to_x(container1, centred(container1, offset));
}

// Pages may still be decelerating after the panel has closed. They must not move the icon out of
// its slot.
void raise_icon(CGFloat rise) {
  if (!isBanner && !icon_is_away()) return;
  move_icon(musicIcon.frame().origin.x, firstMusicIcon.origin.y - rise);
  move_to_y(music, firstMusic.origin.y - rise);
}

void sink_controls(CGFloat fall) {
  move_to_y(back, firstBack1 + fall);
  move_to_y(play, firstPlay1 + fall);
  move_to_y(next, firstNext1 + fall);
  move_to_y(container1, firstContainer1 + fall);
}

// A drag that starts on another page uses the positions that the previous one saved.
void will_begin_dragging(Scroller, UIScrollView pages) {
  if (pages.contentOffset().x != artwork_page_offset().x) return;
  save_resting_positions();
  firstMusic = music.frame();
  firstMusicIcon = musicIcon.frame();
}

void did_scroll(Scroller, UIScrollView pages) {
  const CGFloat offset = pages.contentOffset().x;
  hold_controls(offset);
  const CGFloat distance = offset - artwork_page_offset().x;
  const CGFloat root = __builtin_sqrt(distance < 0 ? -distance : distance);
  raise_icon(root / divisor());
  const bool sinks = objc::send<int>(Spring, "deviceNumber"_sel) >= kFirstSinkingGeneration;
  sink_controls(sinks ? divisor() * root : 0);
}

}  // namespace

void make_scroller() {
  objc::make_own_class<Scroller>([](objc::ClassBuilder& builder) {
    builder.method<&will_begin_dragging>("scrollViewWillBeginDragging:")
        .method<&did_scroll>("scrollViewDidScroll:");
  });
}

void make_pages() {
  const auto pages = objc::adopt(UIScrollView::alloc().initWithFrame(
      {0, screen_height() / 4, screen_width(), 3 * screen_height() / 4 - 20}));
  container = pages;
  pages->setBackgroundColor(UIColor::clearColor());
  pages->setAlpha(0);
  window.addSubview(pages);
  window.bringSubviewToFront(music);
}

void make_page_scrolling() {
  container.setContentSize({kPages * screen_width(), container.frame().size.height});
  container.setPagingEnabled(YES);
  container.setShowsHorizontalScrollIndicator(NO);
  container.setDelegate(Scroller::alloc().init());
}

}  // namespace sonavue
