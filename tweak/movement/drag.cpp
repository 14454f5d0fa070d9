#include "tweak/movement/drag.h"

#include "tweak/movement/geometry.h"

namespace sonavue {
namespace {

// The animation takes a single-precision tenth of a second, widened.
constexpr double kGlide = 0.1f;
constexpr CGFloat kGlideShare = 10;
// The twin stands this much aside of the icon on the frame of the release, and on that one only.
constexpr CGFloat kReleaseAside = 5.0;
constexpr double kIconTravel = 0.5;
constexpr double kContentFade = 0.7;
constexpr double kTableSlide = 0.2;

// Where something that stood at `first` when the drag began is now; the grab keeps its place
// under the finger.
CGPoint dragged_from(CGPoint first) {
  return {static_cast<float>(endPoint.x - (startPoint.x - first.x)),
          static_cast<float>(endPoint.y - (startPoint.y - first.y))};
}

CGFloat at_most_one(CGFloat alpha) {
  return alpha > 1.0 ? 1.0 : alpha;
}

void follow_icon(CGFloat aside, CGPoint icon, CGFloat offset) {
  move_to(music, icon.x + aside, icon.y + offset);
}

void glide_out(SpringBoard self, CGPoint velocity, CGFloat offset) {
  UIView::animateWithDuration(
      kGlide, objc::block([velocity, offset] {
        const CGPoint icon = musicIcon.frame().origin;
        const CGPoint target{icon.x + velocity.x / kGlideShare, icon.y + velocity.y / kGlideShare};
        if (!isBanner) move_to(musicIcon, target.x, target.y);
        follow_icon(kReleaseAside, target, offset);
        cover.setAlpha(fade_ratio(target.y));
      }),
      objc::block([self](BOOL) { objc::send<>(self, "present"_sel); }));
}

void begin_drag_back() {
  firstPos = music.frame();
  window.setUserInteractionEnabled(NO);
  UIView::animateWithDuration(
      kTableSlide, objc::block([] { slide_album_table_aside(); }), objc::block([](BOOL) {
        UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(0); }));
      }));
}

void settle_home() {
  const CGFloat offset = icon_screen_offset();
  UIView::animateWithDuration(kIconTravel, objc::block([offset] {
                                cover.setAlpha(0);
                                musicIcon.setFrame(saved);
                                move_to(music, musicIcon.frame().origin.x, saved.origin.y + offset);
                              }),
                              objc::block([](BOOL) {
                                isShow = NO;
                                music.setHidden(YES);
                              }));
}

// `to_icon` turns a screen y of the twin into a y of the icon.
void glide_home(CGPoint velocity, CGFloat to_icon) {
  UIView::animateWithDuration(
      kGlide, objc::block([velocity, to_icon] {
        const CGPoint from = music.frame().origin;
        const CGPoint target{from.x + velocity.x / kGlideShare, from.y + velocity.y / kGlideShare};
        move_to(music, target.x, target.y);
        if (!isBanner) move_to(musicIcon, target.x, target.y + to_icon);
        cover.setAlpha(fade_ratio(target.y));
      }),
      objc::block([](BOOL) { settle_home(); }));
}

}  // namespace

void sposta(SpringBoard self, UIPanGestureRecognizer pan) {
  if (musicIcon.isEditing() || isBanner) return;
  if (!grabbers.isHidden()) grabbers.setHidden(YES);

  const UIGestureRecognizerState state = pan.state();
  endPoint = pan.locationInView(locationWindow);
  if (state == UIGestureRecognizerStateBegan) {
    saved = musicIcon.frame();
    startPoint = endPoint;
  }
  const CGPoint place = dragged_from(saved.origin);
  const CGPoint velocity = pan.velocityInView(musicIcon);
  const CGFloat offset = icon_screen_offset();

  if (state == UIGestureRecognizerStateEnded) {
    glide_out(self, velocity, offset);
    return;
  }
  if (state == UIGestureRecognizerStateBegan) {
    music.setHidden(NO);
    cover_screen_with_window();
  }
  if (!isBanner) move_to(musicIcon, place.x, place.y);
  follow_icon(0, musicIcon.frame().origin, offset);
  // Not clamped below: a finger beyond the bottom edge gives a negative alpha, which is unseen.
  cover.setAlpha(at_most_one(fade_ratio(endPoint.y)));
}

void sposta1(SpringBoard, UIPanGestureRecognizer pan) {
  if (isBanner) return;
  const UIGestureRecognizerState state = pan.state();
  if (state == UIGestureRecognizerStateBegan) begin_drag_back();
  endPoint = pan.locationInView(locationWindow);
  if (state == UIGestureRecognizerStateBegan) startPoint = endPoint;
  const CGPoint place = dragged_from(firstPos.origin);
  const CGPoint velocity = pan.velocityInView(musicIcon);
  const CGFloat to_icon = -icon_screen_offset();

  if (state == UIGestureRecognizerStateEnded) {
    glide_home(velocity, to_icon);
    return;
  }
  move_to(music, place.x, place.y);
  const CGPoint twin = music.frame().origin;
  if (!isBanner) move_to(musicIcon, twin.x, twin.y + to_icon);
  // Only a dock icon's drag fades the backdrop before the release; a page icon's waits for it.
  if (musicIcon.isInDock()) cover.setAlpha(at_most_one(fade_ratio(endPoint.y)));
}

BOOL gesture_should_receive_touch(SpringBoard, UIGestureRecognizer, UITouch touch) {
  return !touch.view().isKindOfClass(UIButton::cls());
}

BOOL gestures_may_be_simultaneous(SpringBoard, UIGestureRecognizer, UIGestureRecognizer) {
  return NO;
}

}  // namespace sonavue
