#pragma once

#include <optional>
#include <string_view>

#include "host/runtime/countdown.h"
#include "host/runtime/run_loop.h"
#include "host/uikit/focus/focus_ring.h"
#include "host/uikit/focus/focus_steps.h"
#include "host/uikit/focus/focus_stops.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// The focus of the physical keyboard: keys move it from one view to the next and press the view
/// that has it. No view has it until a key moves it, after it was ended, or when its view goes.
/// At most one instance exists in a process.
class Focus {
 public:
  explicit Focus(RunLoop& loop);
  ~Focus();
  Focus(const Focus&) = delete;
  Focus& operator=(const Focus&) = delete;

  /// The focus of this process, or null.
  static Focus* current();

  /// Presses `tab`, `shift-tab`, `up`, `down`, `left`, `right` or `return`. Returns false for any
  /// other key, and when there is nothing to do. A text field that has the keyboard loses it to
  /// what comes next.
  bool press_key(std::string_view key);
  void end();

  UIView view() const { return view_.get(); }
  /// The ring around the view, to be drawn over all windows; nil while there is nothing to show.
  CALayer ring() const { return ring_.layer(); }

 private:
  /// A page that is being turned. The focus arrives with it, coming from a place on the page
  /// before.
  struct PageTurn {
    objc::Ref<UIScrollView> pages;
    FocusStep step;
    CGRect from;
  };

  bool move(FocusStep step);
  bool press();
  std::optional<FocusStop> search(UIView start, FocusStep step);
  void arrive();
  void take(UIView view);
  void follow_row();
  void settle();

  RunLoop& loop_;
  RunLoop::Id turns_;
  FocusRing ring_;
  objc::Ref<UIView> view_;
  /// The scroll view around the view, if any, and the view's place in its content.
  objc::Ref<UIScrollView> around_;
  CGRect place_;
  std::optional<PageTurn> turning_;
  TouchInput finger_;
  Countdown lift_;
};

/// Ends the focus of this process, because its user has turned to the mouse.
void end_focus();

}  // namespace host::uikit
