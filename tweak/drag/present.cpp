#include "tweak/drag/present.h"

#include "platform/SpringBoard/SBControlCenterController.h"
#include "tweak/look/geometry.h"
#include "tweak/motion/album_table_slide.h"
#include "tweak/motion/durations.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"
#include "tweak/search/search.h"
#include "tweak/share/share.h"

namespace sonavue {
namespace {

// One tenth down from the top of the icons' area. For an icon on a page that is the page; for a
// dock icon it is the area above the dock, in the dock's coordinates.
CGPoint icon_place_at_top() {
  const CGFloat x = (screen_width() - musicIcon.frame().size.width) * 0.5;
  const CGFloat list_height = musicIcon.superview().frame().size.height;
  if (!musicIcon.isInDock()) return {x, list_height / 10};
  return {x, (screen_height() - list_height) * -9 / 10};
}

void open_completed() {
  end_movement();
  isShow = YES;
  SBControlCenterController::sharedInstance().dismissAnimated(YES);
}

void fade_content_in() {
  UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(1.0); }),
                              unless_replaced([] { open_completed(); }));
}

// The caller's completion, which is always called.
using Closed = objc::OwnedBlock<void(BOOL)>;

template <class Step>
auto then(const Closed& closed, Step step) {
  return unless_replaced([closed, step] { step(closed); }, [closed] { closed.get()(NO); });
}

void leave_pages(const Closed& closed) {
  container.setContentOffset(artwork_page_offset());
  bring_icon_home(closed);
}

void fade_content_out(const Closed& closed) {
  UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(0); }),
                              then(closed, &leave_pages));
}

}  // namespace

void present(SpringBoard) {
  if (musicIcon.isEditing()) {
    if (movement() == Movement::kOpening) go_straight_home();
    return;
  }
  begin_movement(Movement::kOpening);
  cover_screen_with_window();
  music.setHidden(NO);
  if (!window.isUserInteractionEnabled()) window.setUserInteractionEnabled(YES);

  const CGPoint place = icon_place_at_top();
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([place, offset] {
                                cover.setAlpha(1.0);
                                move_icon(place.x, place.y);
                                const CGPoint icon = musicIcon.frame().origin;
                                move_to(music, icon.x, icon.y + offset);
                              }),
                              unless_replaced([] { fade_content_in(); }));
}

void dismis(SpringBoard, objc::Block<void(BOOL)> completion) {
  dismiss_composer();
  begin_movement(Movement::kClosing);
  cover_screen_with_window();
  // Disable touches at once: none may reach a panel that is closing.
  window.setUserInteractionEnabled(NO);
  UIView::animateWithDuration(kTableSlide, objc::block([] { slide_album_table_aside(); }),
                              then(Closed(completion), &fade_content_out));
}

void dismisWithNoAction(SpringBoard self) {
  end_search_typing();
  // Also closes a panel that is still opening. One that is already closing continues.
  if (icon_is_away() && movement() != Movement::kClosing) {
    const auto nothing = objc::block([](BOOL) {});
    const objc::Block<void(BOOL)> borrowed = nothing;
    objc::send<>(self, "dismis:"_sel, borrowed);
  }
  if (isBanner) objc::send<>(self, "dismissBanner"_sel);
}

}  // namespace sonavue
