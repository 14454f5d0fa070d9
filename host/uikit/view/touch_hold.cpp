#include "host/uikit/view/touch_hold.h"

#include <utility>

#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/view.h"

namespace host::uikit {

TouchHold::TouchHold(UIView view, UIGestureRecognizer but_for)
    : view_(objc::Ref<UIView>::retain(view)) {
  objc::state_of<View>(view).begin_touch_hold();
  cancel_touches_in(view, but_for);
}

void TouchHold::end() {
  if (const auto view = std::exchange(view_, {})) objc::state_of<View>(view.get()).end_touch_hold();
}

}  // namespace host::uikit
