#include "tweak/banner/banner.h"

#include "tweak/banner/banner_layout.h"
#include "tweak/banner/grabber.h"
#include "tweak/look/geometry.h"
#include "tweak/motion/movement.h"
#include "tweak/search/search.h"
#include "tweak/share/share.h"

namespace sonavue {
namespace {

constexpr double kContentFade = 0.01;
constexpr double kTravel = 0.5;
// Only here is a small screen's banner longer while nothing plays.
void come_down() {
  hang_window(banner_height(container1.alpha() == 1, max == 0 && mc.isPlaying()));
}

void show_artwork_page() {
  container.setScrollEnabled(NO);
  container.setContentOffset(artwork_page_offset(), NO);
}

void put_twin_in_place() {
  const CGSize size = music.frame().size;
  move_to(music, (screen_width() - size.width) / 2, (screen_height() - size.height) / 10);
}

void be_gone() {
  cover.setAlpha(0);
  music.setHidden(YES);
  window.setUserInteractionEnabled(NO);
  cover_screen_with_window();
  stand_below_artwork();
  container.setContentOffset(artwork_page_offset());
  // Off while the banner hangs; a banner that nobody grabbed has not switched it on again.
  container.setScrollEnabled(YES);
  isGrabbing = NO;
  container.setAlpha(0);
}

// The extension off, the panel out or on its way, or no panel at all, since nothing was built on a
// phone without the Music application.
bool cannot_come() {
  return !enabled || isShow || icon_is_away() || !container;
}

}  // namespace

void showBanner(SpringBoard) {
  if (cannot_come()) return;
  // A finger that still holds the grabber has lost it.
  begin_movement(Movement::kNone);
  isGrabbing = NO;
  showed = NO;
  end_search_typing();
  show_artwork_page();
  grabbers.setHidden(NO);
  show_grabber(Grabber::kDragging);
  isBanner = YES;
  hang_window(0);
  window.setUserInteractionEnabled(YES);
  put_twin_in_place();
  UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(1); }),
                              objc::block([](BOOL) { stand_at_bottom(); }));
  music.setHidden(NO);
  cover.setAlpha(1);
  container.setAlpha(1);
  UIView::animateWithDuration(kTravel, objc::block([] { come_down(); }));
}

void dismissBanner(SpringBoard) {
  take_composer_down();
  end_search_typing();
  isBanner = NO;
  begin_movement(Movement::kBannerLeaving, &be_gone);
  UIView::animateWithDuration(kTravel, objc::block([] { hang_window(0); }), unless_replaced([] {
                                end_movement();
                                be_gone();
                              }));
}

}  // namespace sonavue
