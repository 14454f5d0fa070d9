#include <algorithm>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/gesture/gesture_recognizer.h"
#include "host/uikit/view/miss_test.h"
#include "host/uikit/view/view.h"

namespace host::uikit {
namespace {

// An almost invisible view takes no touches.
constexpr CGFloat kLeastTouchableAlpha = 0.01;

/// For nil, returns the window that the view is in, or the root of its tree.
UIView or_root(UIView asked, UIView view) {
  if (asked) return asked;
  if (const UIWindow window = view.window()) return window;
  while (const UIView above = view.superview())
    view = above;
  return view;
}

}  // namespace

UIView View::hit_test(CGPoint point, UIEvent event) {
  if (self.isHidden() || !self.isUserInteractionEnabled()) return nil;
  if (self.alpha() < kLeastTouchableAlpha || untouchable_animations_ > 0) return nil;
  if (!self.pointInside(point, event)) return nil;
  if (touch_holds_ > 0) return self;
  // Of thousands of subviews only a few have to be asked.
  MissTest test(point);
  std::vector<objc::Ref<UIView>> candidates;
  for (const auto& child : subviews_) {
    if (!test.misses(child.get())) candidates.push_back(child);
  }
  for (auto child = candidates.rbegin(); child != candidates.rend(); ++child) {
    const CGPoint inner = (*child)->convertPointFromView(point, self);
    if (const UIView hit = (*child)->hitTest(inner, event)) return hit;
  }
  return self;
}

BOOL View::point_inside(CGPoint point, UIEvent) {
  return self.bounds().contains(point);
}

CGPoint View::convert_point_to_view(CGPoint point, UIView view) const {
  const UIView target = or_root(view, self);
  return target == self ? point : from_screen(target, to_screen(self, point));
}

CGPoint View::convert_point_from_view(CGPoint point, UIView view) const {
  const UIView source = or_root(view, self);
  return source == self ? point : from_screen(self, to_screen(source, point));
}

CGRect View::convert_rect_to_view(CGRect rect, UIView view) const {
  const UIView target = or_root(view, self);
  return target == self ? rect : convert_rect(self, rect, target);
}

CGRect View::convert_rect_from_view(CGRect rect, UIView view) const {
  const UIView source = or_root(view, self);
  return source == self ? rect : convert_rect(source, rect, self);
}

NSArray View::gesture_recognizers() const {
  std::vector<objc::Object> objects;
  for (const auto& recognizer : recognizers_)
    objects.push_back(recognizer.get());
  return NSArray::arrayWithObjects(objects.data(), objects.size());
}

void View::set_gesture_recognizers(NSArray recognizers) {
  const auto old = recognizers_;
  for (const auto& recognizer : old)
    self.removeGestureRecognizer(recognizer.get());
  for (const auto recognizer : recognizers.of<UIGestureRecognizer>())
    self.addGestureRecognizer(recognizer);
}

void View::add_gesture_recognizer(UIGestureRecognizer recognizer) {
  if (!recognizer || recognizer.view() == self) return;
  const auto kept = objc::Ref<UIGestureRecognizer>::retain(recognizer);
  recognizer.view().removeGestureRecognizer(recognizer);
  recognizers_.push_back(kept);
  objc::state_of<GestureRecognizer>(recognizer).set_view(self);
}

void View::remove_gesture_recognizer(UIGestureRecognizer recognizer) {
  const auto found =
      std::find_if(recognizers_.begin(), recognizers_.end(),
                   [recognizer](const auto& present) { return present.get() == recognizer; });
  if (found == recognizers_.end()) return;
  // Its targets are told of the end while it still has its view.
  const auto kept = *found;
  recognizers_.erase(found);
  objc::state_of<GestureRecognizer>(recognizer).leave_view();
}

}  // namespace host::uikit
