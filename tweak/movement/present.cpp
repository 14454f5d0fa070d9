#include "tweak/movement/present.h"

#include "platform/SpringBoard/SBControlCenterController.h"
#include "tweak/movement/geometry.h"

namespace sonavue {
namespace {

constexpr double kIconTravel = 0.5;
constexpr double kContentFade = 0.7;
constexpr double kTableSlide = 0.2;

// One tenth of the way down the area of the icons: that of the page, or for a dock icon the area
// above the dock, in the dock's own coordinates.
CGPoint icon_place_at_top() {
  const CGFloat x = (screen_width() - musicIcon.frame().size.width) * 0.5;
  const CGFloat list_height = musicIcon.superview().frame().size.height;
  if (!musicIcon.isInDock()) return {x, list_height / 10};
  return {x, (screen_height() - list_height) * -9 / 10};
}

void open_completed() {
  isShow = YES;
  SBControlCenterController::sharedInstance().dismissAnimated(YES);
}

void fade_content_in() {
  UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(1.0); }),
                              objc::block([](BOOL) { open_completed(); }));
}

void take_icon_home(const objc::OwnedBlock<void(BOOL)>& completion) {
  container.setContentOffset(artwork_page_offset());
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([offset] {
                                cover.setAlpha(0);
                                musicIcon.setFrame(saved);
                                move_to(music, musicIcon.frame().origin.x, saved.origin.y + offset);
                              }),
                              objc::block([completion](BOOL) {
                                isShow = NO;
                                music.setHidden(YES);
                                completion.get()(YES);
                              }));
}

}  // namespace

void present(SpringBoard) {
  if (musicIcon.isEditing()) return;
  cover_screen_with_window();
  music.setHidden(NO);
  if (!window.isUserInteractionEnabled()) window.setUserInteractionEnabled(YES);

  const CGPoint place = icon_place_at_top();
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([place, offset] {
                                cover.setAlpha(1.0);
                                if (!isBanner) move_to(musicIcon, place.x, place.y);
                                const CGPoint icon = musicIcon.frame().origin;
                                move_to(music, icon.x, icon.y + offset);
                              }),
                              objc::block([](BOOL) { fade_content_in(); }));
}

void dismis(SpringBoard, objc::Block<void(BOOL)> completion) {
  cover_screen_with_window();
  // At once, so that no touch reaches a panel that is closing.
  window.setUserInteractionEnabled(NO);
  const objc::OwnedBlock<void(BOOL)> kept(completion);
  UIView::animateWithDuration(
      kTableSlide, objc::block([] { slide_album_table_aside(); }), objc::block([kept](BOOL) {
        UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(0); }),
                                    objc::block([kept](BOOL) { take_icon_home(kept); }));
      }));
}

void dismisWithNoAction(SpringBoard self) {
  if (searchBar.isFirstResponder()) searchBar.resignFirstResponder();
  if (isShow) {
    const auto nothing = objc::block([](BOOL) {});
    const objc::Block<void(BOOL)> borrowed = nothing;
    objc::send<>(self, "dismis:"_sel, borrowed);
  }
  if (isBanner) objc::send<>(self, "dismissBanner"_sel);
}

}  // namespace sonavue
