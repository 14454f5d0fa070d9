#include "tweak/panel/idle_layout.h"

#include "tweak/banner/banner_layout.h"
#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"

namespace sonavue {
namespace {

constexpr double kChange = 0.3;

void move_controls(CGFloat by) {
  for (const UIButton control : {play, back, next})
    move_to_y(control, control.frame().origin.y + by);
}

void move_resting_places(CGFloat by) {
  const auto shift = static_cast<float>(by);
  firstPlay1 += shift;
  firstNext1 += shift;
  firstBack1 += shift;
}

// Places that are kept while the controls move are the new ones already.
auto resting_places_moved(CGFloat by) {
  return objc::block([by, kept = times_resting_places_were_kept()](BOOL) {
    if (kept == times_resting_places_were_kept()) move_resting_places(by);
  });
}

bool window_is_fully_down() {
  return window.frame().origin.y == 0;
}

}  // namespace

void lay_out_full() {
  hide = NO;
  UIView::animateWithDuration(kChange, objc::block([] {
                                if (window_is_fully_down()) {
                                  move_controls(kLift);
                                } else if (isBanner) {
                                  hang_window(banner_height(true, max == 0));
                                }
                                container1.setAlpha(1);
                              }),
                              resting_places_moved(kLift));
}

void lay_out_compact() {
  hide = YES;
  UIView::animateWithDuration(kChange, objc::block([] {
                                if (window_is_fully_down()) {
                                  move_controls(-kLift);
                                } else if (isBanner) {
                                  hang_window(banner_height(false, false));
                                }
                                container1.setAlpha(0);
                              }),
                              resting_places_moved(-kLift));
}

}  // namespace sonavue
