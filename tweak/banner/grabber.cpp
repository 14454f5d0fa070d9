#include "tweak/banner/grabber.h"

#include "platform/SpringBoard/SBControlCenterController.h"
#include "tweak/banner/banner_layout.h"
#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"
#include "tweak/look/pieces.h"
#include "tweak/motion/movement.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr double kOpening = 0.5;

void begin() {
  begin_movement(Movement::kGrab);
  container.setScrollEnabled(NO);
  isGrabbing = YES;
  show_grabber(Grabber::kDragging);
  firstPosBanner = static_cast<float>(window.frame().origin.y);
  if (!showed) save_resting_positions();
  SBControlCenterController::sharedInstance().dismissAnimated(YES);
}

void follow() {
  const CGFloat distance = endPoint.y - startPoint.y;
  if (!showed && window.frame().origin.y != 0) rise_against(distance);
  // An open banner cannot be pulled further down.
  const bool is_at_its_end = firstPosBanner == 0 && distance > 0;
  move_to_y(window, firstPosBanner + (is_at_its_end ? 0 : distance));
}

void finish_opening() {
  show_grabber(Grabber::kDone);
  isGrabbing = NO;
}

void open() {
  showed = YES;
  end_movement();
  UIView::animateWithDuration(kOpening, objc::block([] {
                                cover_screen_with_window();
                                lay_out_below_artwork();
                              }),
                              unless_replaced(&finish_opening));
}

void end_grab(SpringBoard self) {
  container.setScrollEnabled(YES);
  if (window.frame().origin.y < firstPosBanner) {
    objc::send<>(self, "dismissBanner"_sel);
  } else if (!showed) {
    open();
  } else {
    end_movement();
    finish_opening();
  }
}

// Moves the banner back to where the grab began.
void cancel_grab() {
  end_movement();
  isGrabbing = NO;
  container.setScrollEnabled(showed);
  if (showed) show_grabber(Grabber::kDone);
  UIView::animateWithDuration(kOpening, objc::block([] {
                                move_to_y(window, firstPosBanner);
                                if (!showed) rise_against(0);
                              }));
}

void add_grab_picture() {
  const CGSize bar = grabbers.frame().size;
  const auto picture = objc::adopt(UIImageView::alloc().initWithFrame(
      {(bar.width - kGrabSize.width) / 2, (bar.height - kGrabSize.height) / 2, kGrabSize.width,
       kGrabSize.height}));
  grabs = picture;
  show_grabber(Grabber::kDragging);
  picture->setTintColor(UIColor::whiteColor());
  grabbers.addSubview(picture);
}

}  // namespace

void show_grabber(Grabber picture) {
  grabs.setImage(picture == Grabber::kDragging ? template_asset<"grab_dragging@2x.png">()
                                               : template_asset<"grab_done@2x.png">());
}

void make_grabber(SpringBoard self) {
  const CGSize around = cover.frame().size;
  const auto strip = objc::adopt(UIView::alloc().initWithFrame(
      {0, around.height - kGrabberHeight, around.width, kGrabberHeight}));
  grabbers = strip;
  add_grab_picture();
  const auto line = make_line({0, 0, strip->frame().size.width, kGrabberLine});
  top2 = line;
  strip->addSubview(line);

  const auto pan =
      objc::adopt(UIPanGestureRecognizer::alloc().initWithTarget(self, "presentBanner:"_sel));
  strip->addGestureRecognizer(pan);
  strip->setHidden(YES);
  // A subview of the backdrop, so that it is hidden with the backdrop.
  cover.addSubview(strip);
}

void presentBanner(SpringBoard self, UIPanGestureRecognizer pan) {
  const UIGestureRecognizerState state = pan.state();
  const bool begins = state == UIGestureRecognizerStateBegan;
  // A banner that is leaving ignores the finger, and so does one that was shown again during the
  // grab.
  if (begins ? !isBanner : movement() != Movement::kGrab) return;
  if (state == UIGestureRecognizerStateEnded) {
    end_grab(self);
    return;
  }
  if (is_interrupted(state)) {
    cancel_grab();
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
