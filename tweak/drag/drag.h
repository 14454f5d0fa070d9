#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"

namespace sonavue {

/// The pan on the Music icon: drags the panel out. Releasing it always opens the panel.
void sposta(SpringBoard self, UIPanGestureRecognizer pan);

/// The pan on the icon's twin at the top of the open panel: drags it back. Releasing it always
/// closes the panel.
void sposta1(SpringBoard self, UIPanGestureRecognizer pan);

/// Returns NO for touches on buttons, which never start a drag or a tap that closes the panel.
BOOL gesture_should_receive_touch(SpringBoard self, UIGestureRecognizer recognizer, UITouch touch);
BOOL gestures_may_be_simultaneous(SpringBoard self, UIGestureRecognizer one,
                                  UIGestureRecognizer other);

}  // namespace sonavue
