#include "tweak/motion/icon_home.h"

#include "tweak/look/geometry.h"
#include "tweak/motion/durations.h"
#include "tweak/motion/movement.h"

namespace sonavue {
namespace {

// The list in whose coordinates `saved` is. Only compared; it never receives a message.
UIView home_list;
// The frame that the icon was last given.
CGRect last_frame;

// An icon that the system has moved to another list is already in its slot there.
bool is_in_other_list() {
  return home_list && musicIcon.superview() != home_list;
}

// So is one that the user has moved within its list while arranging icons.
bool is_in_other_slot() {
  return is_in_other_list() || (home_list && !(musicIcon.frame() == last_frame));
}

void finish_closing() {
  isShow = NO;
  music.setHidden(YES);
}

}  // namespace

void save_icon_home() {
  saved = musicIcon.frame();
  last_frame = saved;
  home_list = musicIcon.superview();
}

void move_icon(CGFloat x, CGFloat y) {
  if (isBanner || is_in_other_list()) return;
  move_to(musicIcon, x, y);
  last_frame = musicIcon.frame();
}

void bring_icon_home(objc::OwnedBlock<void(BOOL)> closed) {
  begin_movement(Movement::kGoingHome, &finish_closing);
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([offset] {
                                cover.setAlpha(0);
                                if (!is_in_other_slot()) musicIcon.setFrame(saved);
                                move_to(music, musicIcon.frame().origin.x, saved.origin.y + offset);
                              }),
                              unless_replaced(
                                  [closed] {
                                    end_movement();
                                    finish_closing();
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
