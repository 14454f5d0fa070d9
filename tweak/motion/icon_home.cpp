#include "tweak/motion/icon_home.h"

#include "tweak/look/geometry.h"
#include "tweak/motion/durations.h"
#include "tweak/motion/movement.h"

namespace sonavue {
namespace {

// In whose coordinates `saved` is. Only compared, never sent a message.
UIView list_of_home;
// Where the icon was put last.
CGRect place;

// An icon that the system has moved to another list stands in its slot there.
bool has_other_list() {
  return list_of_home && musicIcon.superview() != list_of_home;
}

// So does one that has been moved within its list, by a finger that arranges the icons.
bool has_other_slot() {
  return has_other_list() || (list_of_home && !(musicIcon.frame() == place));
}

void be_closed() {
  isShow = NO;
  music.setHidden(YES);
}

}  // namespace

void keep_icon_home() {
  saved = musicIcon.frame();
  place = saved;
  list_of_home = musicIcon.superview();
}

void move_icon(CGFloat x, CGFloat y) {
  if (isBanner || has_other_list()) return;
  move_to(musicIcon, x, y);
  place = musicIcon.frame();
}

void bring_icon_home(objc::OwnedBlock<void(BOOL)> closed) {
  begin_movement(Movement::kGoingHome, &be_closed);
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([offset] {
                                cover.setAlpha(0);
                                if (!has_other_slot()) musicIcon.setFrame(saved);
                                move_to(music, musicIcon.frame().origin.x, saved.origin.y + offset);
                              }),
                              unless_replaced(
                                  [closed] {
                                    end_movement();
                                    be_closed();
                                    closed.get()(YES);
                                  },
                                  [closed] { closed.get()(NO); }));
}

void go_straight_home() {
  window.setUserInteractionEnabled(NO);
  UIView::animateWithDuration(kIconTravel, objc::block([] { container.setAlpha(0); }));
  bring_icon_home();
}

}  // namespace sonavue
