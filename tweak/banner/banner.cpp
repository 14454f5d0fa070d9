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
// On small screens, and only when the banner is brought in, it is longer while nothing plays.
void lower_banner() {
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

void finish_leaving() {
  cover.setAlpha(0);
  music.setHidden(YES);
  window.setUserInteractionEnabled(NO);
  cover_screen_with_window();
  lay_out_below_artwork();
  container.setContentOffset(artwork_page_offset());
  // Scrolling is off while the banner hangs, and only a grab switches it on again.
  container.setScrollEnabled(YES);
  isGrabbing = NO;
  container.setAlpha(0);
}

// True while the extension is off or the panel is open or moving, and on a phone without the Music
// application, where no panel was built.
bool cannot_show_banner() {
  return !enabled || isShow || icon_is_away() || !container;
}

}  // namespace

void showBanner(SpringBoard) {
  if (cannot_show_banner()) return;
  // Ends the grab of a finger that still holds the grabber.
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
                              objc::block([](BOOL) { lay_out_at_bottom(); }));
  music.setHidden(NO);
  cover.setAlpha(1);
  container.setAlpha(1);
  UIView::animateWithDuration(kTravel, objc::block([] { lower_banner(); }));
}

void dismissBanner(SpringBoard) {
  dismiss_composer();
  end_search_typing();
  isBanner = NO;
  begin_movement(Movement::kBannerLeaving, &finish_leaving);
  UIView::animateWithDuration(kTravel, objc::block([] { hang_window(0); }), unless_replaced([] {
                                end_movement();
                                finish_leaving();
                              }));
}

}  // namespace sonavue
