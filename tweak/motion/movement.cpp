#include "tweak/motion/movement.h"

namespace sonavue {
namespace {

Movement current = Movement::kNone;
void (*settle_current)() = nullptr;
unsigned number = 0;

}  // namespace

Movement movement() {
  return current;
}

unsigned movement_number() {
  return number;
}

void begin_movement(Movement movement, void (*settle)()) {
  // While it settles, the old movement is still the current one.
  if (void (*const settle_before)() = settle_current) {
    settle_current = nullptr;
    settle_before();
  }
  current = movement;
  settle_current = settle;
  ++number;
}

void end_movement() {
  settle_current = nullptr;
  begin_movement(Movement::kNone);
}

bool is_interrupted(UIGestureRecognizerState state) {
  return state == UIGestureRecognizerStateCancelled || state == UIGestureRecognizerStateFailed;
}

bool icon_is_away() {
  switch (current) {
    case Movement::kDragOut:
    case Movement::kOpening:
    case Movement::kDragBack:
    case Movement::kClosing:
      return true;
    case Movement::kNone:
      return isShow;
    case Movement::kGoingHome:
    case Movement::kGrab:
    case Movement::kBannerLeaving:
      break;
  }
  return false;
}

}  // namespace sonavue
