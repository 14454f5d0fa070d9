#include "tweak/banner/grabber.h"

#include "platform/SpringBoard/SBControlCenterController.h"
#include "tweak/banner/banner.h"
#include "tweak/banner/banner_layout.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"
#include "tweak/motion/movement.h"

namespace sonavue {
namespace {

constexpr double kOpening = 0.5;

void begin() {
  begin_movement(Movement::kGrab);
  container.setScrollEnabled(NO);
  isGrabbing = YES;
  show_grabber(Grabber::kDragging);
  firstPosBanner = static_cast<float>(window.frame().origin.y);
  if (!showed) keep_resting_places();
  SBControlCenterController::sharedInstance().dismissAnimated(YES);
}

void follow() {
  const CGFloat distance = endPoint.y - startPoint.y;
  if (!showed && window.frame().origin.y != 0) rise_against(distance);
  // An open banner goes no further down.
  const bool is_at_its_end = firstPosBanner == 0 && distance > 0;
  move_to_y(window, firstPosBanner + (is_at_its_end ? 0 : distance));
}

void be_open() {
  show_grabber(Grabber::kDone);
  isGrabbing = NO;
}

void open() {
  showed = YES;
  end_movement();
  UIView::animateWithDuration(kOpening, objc::block([] {
                                cover_screen_with_window();
                                stand_below_artwork();
                              }),
                              unless_replaced(&be_open));
}

void let_go(SpringBoard self) {
  container.setScrollEnabled(YES);
  if (window.frame().origin.y < firstPosBanner) {
    objc::send<>(self, "dismissBanner"_sel);
  } else if (!showed) {
    open();
  } else {
    end_movement();
    be_open();
  }
}

// Back to where the grab began.
void give_back() {
  end_movement();
  isGrabbing = NO;
  container.setScrollEnabled(showed);
  if (showed) show_grabber(Grabber::kDone);
  UIView::animateWithDuration(kOpening, objc::block([] {
                                move_to_y(window, firstPosBanner);
                                if (!showed) rise_against(0);
                              }));
}

}  // namespace

void show_grabber(Grabber picture) {
  grabs.setImage(template_image(picture == Grabber::kDragging
                                    ? "/Library/Application Support/Sonavue/grab_dragging@2x.png"_ns
                                    : "/Library/Application Support/Sonavue/grab_done@2x.png"_ns));
}

void presentBanner(SpringBoard self, UIPanGestureRecognizer pan) {
  const UIGestureRecognizerState state = pan.state();
  const bool begins = state == UIGestureRecognizerStateBegan;
  // A banner that is leaving ignores the finger, and so does one that was called again under it.
  if (begins ? !isBanner : movement() != Movement::kGrab) return;
  if (state == UIGestureRecognizerStateEnded) {
    let_go(self);
    return;
  }
  if (is_lost(state)) {
    give_back();
    return;
  }
  endPoint = pan.locationInView(locationWindow);
  if (begins) {
    begin();
    startPoint = endPoint;
  }
  follow();
}

}  // namespace sonavue
