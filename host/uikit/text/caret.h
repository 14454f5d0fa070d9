#pragma once

#include "host/runtime/run_loop.h"
#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// The bar that shows where typed text goes. While shown, it blinks on the loop's clock; while
/// hidden, it keeps no timer.
class Caret {
 public:
  Caret() = default;
  ~Caret() { hide(); }
  Caret(const Caret&) = delete;
  Caret& operator=(const Caret&) = delete;

  /// Shows the caret in `parent` at once and for a full period: typing keeps it lit.
  void show(UIView parent, CGRect frame, UIColor color);
  void hide();
  bool is_shown() const { return blink_ != 0; }
  bool is_lit() const { return view_ && !view_->isHidden(); }
  CGRect frame() const { return view_ ? view_->frame() : CGRect(); }

 private:
  void restart_blinking();

  objc::Ref<UIView> view_;
  RunLoop::Id blink_ = 0;
};

}  // namespace host::uikit
