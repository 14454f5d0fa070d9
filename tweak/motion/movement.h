#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"
#include "tweak/Sonavue2.h"

// At most one movement of the panel is under way. The one that begins takes the place of the one
// before, whose later steps are not taken any more.

namespace sonavue {

enum class Movement {
  kNone,           // closed, open or hanging, as the flags say
  kDragOut,        // the icon follows the finger
  kOpening,        // from the release of the icon until the panel is open
  kDragBack,       // the twin follows the finger
  kClosing,        // the content goes, while the icon is still at the top
  kGoingHome,      // the icon flies to its slot
  kGrab,           // the banner follows the finger
  kBannerLeaving,  // the banner slides out
};

Movement movement();

/// Begins `movement` in place of the movement under way. `settle` does at once what is left of it
/// when another movement takes its place.
void begin_movement(Movement movement, void (*settle)() = nullptr);

/// The present movement has come to its end.
void end_movement();

/// Is the icon out of its slot: dragged, at the top, or on its way there?
bool icon_is_away();

/// Has the system taken the finger of a drag away?
bool is_lost(UIGestureRecognizerState state);

/// Counts the movements; a step of a chain belongs to the one that was under way when it was made.
unsigned movement_number();

/// The completion of a step of the present movement: `step`, or `otherwise` once another movement
/// has taken its place.
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
