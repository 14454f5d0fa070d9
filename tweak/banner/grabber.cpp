#include "tweak/banner/grabber.h"

#include "platform/SpringBoard/SBControlCenterController.h"
#include "tweak/banner/banner.h"
#include "tweak/banner/controls_layout.h"
#include "tweak/movement/geometry.h"
#include "tweak/panel/pieces.h"

namespace sonavue {
namespace {

constexpr double kOpening = 0.5;

void begin() {
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

void open() {
  showed = YES;
  UIView::animateWithDuration(kOpening, objc::block([] {
                                cover_screen_with_window();
                                stand_below_artwork();
                              }),
                              objc::block([](BOOL) {
                                show_grabber(Grabber::kDone);
                                isGrabbing = NO;
                              }));
}

void let_go(SpringBoard self) {
  container.setScrollEnabled(YES);
  if (window.frame().origin.y < firstPosBanner) {
    objc::send<>(self, "dismissBanner"_sel);
  } else if (!showed) {
    open();
  }
}

}  // namespace

void show_grabber(Grabber picture) {
  grabs.setImage(template_image(picture == Grabber::kDragging
                                    ? "/Library/Application Support/Sonavue/grab_dragging@2x.png"_ns
                                    : "/Library/Application Support/Sonavue/grab_done@2x.png"_ns));
}

void presentBanner(SpringBoard self, UIPanGestureRecognizer pan) {
  const UIGestureRecognizerState state = pan.state();
  if (state == UIGestureRecognizerStateEnded || state == UIGestureRecognizerStateCancelled) {
    let_go(self);
    return;
  }
  endPoint = pan.locationInView(locationWindow);
  if (state == UIGestureRecognizerStateBegan) {
    begin();
    startPoint = endPoint;
  }
  follow();
}

}  // namespace sonavue
