#include "tweak/drag/drag.h"

#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"
#include "tweak/motion/album_table_slide.h"
#include "tweak/motion/durations.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"
#include "tweak/search/search.h"
#include "tweak/share/share.h"

namespace sonavue {
namespace {

// The duration is a float 0.1, widened to double.
constexpr double kGlide = 0.1f;
constexpr CGFloat kGlideShare = 10;

// The current position of something that was at `first` when the drag began. The finger keeps the
// point where it grabbed it.
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

bool may_drag_out() {
  return !musicIcon.isEditing() && !isBanner && !icon_is_away();
}

bool may_drag_back() {
  return movement() == Movement::kNone || movement() == Movement::kOpening;
}

void begin_drag_out() {
  begin_movement(Movement::kDragOut);
  save_icon_home();
}

void glide_out(SpringBoard self, CGPoint velocity, CGFloat offset) {
  begin_movement(Movement::kOpening);
  UIView::animateWithDuration(
      kGlide, objc::block([velocity, offset] {
        const CGPoint icon = musicIcon.frame().origin;
        const CGPoint target{icon.x + velocity.x / kGlideShare, icon.y + velocity.y / kGlideShare};
        move_icon(target.x, target.y);
        follow_icon(kReleaseAside, target, offset);
        cover.setAlpha(fade_ratio(target.y));
      }),
      unless_replaced([self] { objc::send<>(self, "present"_sel); }));
}

void begin_drag_back() {
  dismiss_composer();
  end_search_typing();
  begin_movement(Movement::kDragBack);
  firstPos = music.frame();
  window.setUserInteractionEnabled(NO);
  UIView::animateWithDuration(
      kTableSlide, objc::block([] { slide_album_table_aside(); }), objc::block([](BOOL) {
        UIView::animateWithDuration(kContentFade, objc::block([] { container.setAlpha(0); }));
      }));
}

// `to_icon` converts the twin's y, in screen coordinates, to the icon's y.
void glide_home(CGPoint velocity, CGFloat to_icon) {
  UIView::animateWithDuration(
      kGlide, objc::block([velocity, to_icon] {
        const CGPoint from = music.frame().origin;
        const CGPoint target{from.x + velocity.x / kGlideShare, from.y + velocity.y / kGlideShare};
        move_to(music, target.x, target.y);
        move_icon(target.x, target.y + to_icon);
        cover.setAlpha(fade_ratio(target.y));
      }),
      unless_replaced([] { bring_icon_home(); }));
}

}  // namespace

void sposta(SpringBoard self, UIPanGestureRecognizer pan) {
  const UIGestureRecognizerState state = pan.state();
  const bool begins = state == UIGestureRecognizerStateBegan;
  const bool ends = state == UIGestureRecognizerStateEnded;
  // Ignore the rest of a drag that was refused, or that a button has ended.
  if (begins ? !may_drag_out() : movement() != Movement::kDragOut) return;
  const bool is_disturbed = musicIcon.isEditing() || isBanner;
  // If editing or the banner begins during a drag, the end of the drag must still be handled.
  if (is_interrupted(state) || (ends && is_disturbed)) {
    go_straight_home();
    return;
  }
  if (is_disturbed) return;
  if (!grabbers.isHidden()) grabbers.setHidden(YES);

  endPoint = pan.locationInView(locationWindow);
  if (begins) {
    begin_drag_out();
    startPoint = endPoint;
  }
  const CGPoint place = dragged_from(saved.origin);
  const CGPoint velocity = pan.velocityInView(musicIcon);
  const CGFloat offset = icon_screen_offset();

  if (ends) {
    glide_out(self, velocity, offset);
    return;
  }
  if (begins) {
    music.setHidden(NO);
    cover_screen_with_window();
  }
  move_icon(place.x, place.y);
  follow_icon(0, musicIcon.frame().origin, offset);
  // Not clamped below 0: past the bottom edge the alpha is negative, which is invisible.
  cover.setAlpha(at_most_one(fade_ratio(endPoint.y)));
}

void sposta1(SpringBoard, UIPanGestureRecognizer pan) {
  const UIGestureRecognizerState state = pan.state();
  const bool begins = state == UIGestureRecognizerStateBegan;
  if (begins ? !may_drag_back() : movement() != Movement::kDragBack) return;
  if (is_interrupted(state)) {
    go_straight_home();
    return;
  }
  if (isBanner) return;
  if (begins) begin_drag_back();
  endPoint = pan.locationInView(locationWindow);
  if (begins) startPoint = endPoint;
  const CGPoint place = dragged_from(firstPos.origin);
  const CGPoint velocity = pan.velocityInView(musicIcon);
  const CGFloat to_icon = -icon_screen_offset();

  if (state == UIGestureRecognizerStateEnded) {
    glide_home(velocity, to_icon);
    return;
  }
  move_to(music, place.x, place.y);
  const CGPoint twin = music.frame().origin;
  move_icon(twin.x, twin.y + to_icon);
  // Dragging a dock icon fades the backdrop at once; dragging an icon on a page does so only after
  // the release.
  if (musicIcon.isInDock()) cover.setAlpha(at_most_one(fade_ratio(endPoint.y)));
}

BOOL gesture_should_receive_touch(SpringBoard, UIGestureRecognizer, UITouch touch) {
  return !touch.view().isKindOfClass(UIButton::cls());
}

BOOL gestures_may_be_simultaneous(SpringBoard, UIGestureRecognizer, UIGestureRecognizer) {
  return NO;
}

}  // namespace sonavue
