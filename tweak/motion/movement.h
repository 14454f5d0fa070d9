#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"
#include "tweak/Sonavue2.h"

// At most one movement of the panel is under way. A new movement replaces the previous one, whose
// remaining steps are dropped.

namespace sonavue {

enum class Movement {
  kNone,           // at rest: closed, open or hanging, as the flags say
  kDragOut,        // the icon follows the finger
  kOpening,        // from the release of the icon until the panel is open
  kDragBack,       // the twin follows the finger
  kClosing,        // the content fades out while the icon is still at the top
  kGoingHome,      // the icon moves to its slot
  kGrab,           // the banner follows the finger
  kBannerLeaving,  // the banner slides out
};

Movement movement();

/// Begins `movement`, which replaces the one under way. If another movement later replaces it,
/// `settle` is called to complete it at once.
void begin_movement(Movement movement, void (*settle)() = nullptr);

/// Ends the current movement, which is complete.
void end_movement();

/// Whether the icon is out of its slot: dragged, at the top, or on its way there.
bool icon_is_away();

/// Whether a drag was cancelled or failed, so that the release of the finger will not be reported.
bool is_interrupted(UIGestureRecognizerState state);

/// A number for each movement. A step of an animation chain belongs to the movement in which it was
/// made.
unsigned movement_number();

/// A completion for an animation of the current movement. It calls `step`, or `otherwise` if
/// another movement has replaced this one.
template <class Step, class Otherwise>
auto unless_replaced(Step step, Otherwise otherwise) {
  return objc::block([number = movement_number(), step, otherwise](BOOL) {
    if (number == movement_number()) {
      step();
    } else {
      otherwise();
    }
  });
}

template <class Step>
auto unless_replaced(Step step) {
  return unless_replaced(step, [] {});
}

}  // namespace sonavue
