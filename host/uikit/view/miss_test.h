#pragma once

#include "host/quartzcore/layers/layer.h"
#include "host/uikit/view/view.h"

namespace host::uikit {

/// Finds out which of many subviews are certainly not hit at a point, so that they need not be
/// asked. Views whose class overrides hit-testing must always be asked.
class MissTest {
 public:
  /// `point` is in the coordinates of the subviews' superview.
  explicit MissTest(CGPoint point) : point_(point) {}

  bool misses(UIView view) {
    const objc::Class cls = objc::class_of(view.id());
    if (cls != last_class_) {
      last_class_ = cls;
      is_plain_ = is_inherited(cls, "hitTest:withEvent:"_sel) &&
                  is_inherited(cls, "pointInside:withEvent:"_sel) &&
                  is_inherited(cls, "bounds"_sel);
    }
    if (!is_plain_) return false;
    const CALayer layer = objc::state_of<View>(view).layer();
    const CGRect frame = quartzcore::layer_of(layer).model.properties.frame();
    return !CGRectInset(frame, -kMargin, -kMargin).contains(point_);
  }

 private:
  // Turned or mirrored views have other edges, and rounding errors.
  static constexpr CGFloat kMargin = 1;

  static bool is_inherited(objc::Class cls, objc::Sel selector) {
    const objc::Method own = class_getInstanceMethod(cls, selector);
    const objc::Method plain = class_getInstanceMethod(UIView::cls(), selector);
    return method_getImplementation(own) == method_getImplementation(plain);
  }

  CGPoint point_;
  objc::Class last_class_ = nullptr;
  bool is_plain_ = false;
};

}  // namespace host::uikit
