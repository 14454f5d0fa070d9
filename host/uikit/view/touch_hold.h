#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Keeps touches from the contents of a view while pages come and go there. New fingers reach the
/// view itself and nothing in it; fingers already down are cancelled, except the one that `but_for`
/// sees because a page follows it.
class TouchHold {
 public:
  explicit TouchHold(UIView view, UIGestureRecognizer but_for = nil);
  ~TouchHold() { end(); }
  TouchHold(const TouchHold&) = delete;
  TouchHold& operator=(const TouchHold&) = delete;

  void end();

 private:
  objc::Ref<UIView> view_;
};

}  // namespace host::uikit
