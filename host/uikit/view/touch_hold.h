#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Keeps touches from what is in a view, for as long as pages come and go there: fingers that land
/// meet the view itself and nothing in it, and those that are down are cancelled. The one that a
/// page follows, seen by `but_for`, stays.
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
