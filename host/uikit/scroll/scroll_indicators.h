#pragma once

#include "host/uikit/scroll/scroll_geometry.h"
#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// The two slim bars that show the position of a scroll view in its content. Only their layers are
/// added to the view, so a walk over its subviews finds nothing but content.
class ScrollIndicators {
 public:
  struct Shown {
    bool horizontal;
    bool vertical;
  };

  explicit ScrollIndicators(UIScrollView view) : view_(view) {}
  ~ScrollIndicators();

  void set_style(UIScrollViewIndicatorStyle style);
  /// Positions the bars for `offset` in `geometry`, `insets` away from the view's edges.
  void place(const ScrollGeometry& geometry, CGPoint offset, UIEdgeInsets insets, Shown shown);
  void appear();
  void fade();

 private:
  UIView bar(objc::Ref<UIView>& bar);
  void place_bar(objc::Ref<UIView>& bar, bool shown, CGRect frame);

  UIScrollView view_;
  UIScrollViewIndicatorStyle style_ = UIScrollViewIndicatorStyleDefault;
  objc::Ref<UIView> horizontal_;
  objc::Ref<UIView> vertical_;
  bool visible_ = false;
};

}  // namespace host::uikit
