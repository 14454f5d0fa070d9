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

void shift_resting_positions(CGFloat by) {
  const auto shift = static_cast<float>(by);
  firstPlay1 += shift;
  firstNext1 += shift;
  firstBack1 += shift;
}

// Positions that were saved during the animation already are the new ones.
auto shift_resting_positions_afterwards(CGFloat by) {
  return objc::block([by, count = resting_positions_save_count()](BOOL) {
    if (count == resting_positions_save_count()) shift_resting_positions(by);
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
                              shift_resting_positions_afterwards(kLift));
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
                              shift_resting_positions_afterwards(-kLift));
}

}  // namespace sonavue
