#pragma once

#include "host/uikit/focus/focus_steps.h"
#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// Returns the innermost scroll view around the view, or nil.
UIScrollView scroll_view_around(UIView view);

/// Content that can still move for a step, and in which direction.
struct Scrolling {
  objc::Ref<UIScrollView> view;
  CGPoint way;

  bool can_go_on() const;
};

/// Returns the innermost around the view; its view is nil when nothing moves.
Scrolling scrolling_around(UIView view, FocusStep step);

// Both return where something that is at `place` on the screen goes with the content.

/// Moves the content a little, as a touchpad does.
CGRect scroll_on(const Scrolling& scrolling, CGRect place);
/// Begins to turn to the next page.
CGRect turn_page(const Scrolling& pages, CGRect place);

/// Moves all content around the view, except pages, so that the view is seen as a whole.
void bring_into_sight(UIView view);

}  // namespace host::uikit
