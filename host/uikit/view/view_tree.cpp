#include <algorithm>

#include "host/runtime/log.h"
#include "host/uikit/view/responder.h"
#include "host/uikit/view/view.h"

namespace host::uikit {

NSArray View::subviews() const {
  if (!subview_array_) {
    std::vector<objc::Object> objects;
    objects.reserve(subviews_.size());
    for (const auto& child : subviews_)
      objects.push_back(child.get());
    subview_array_.reset(NSArray::arrayWithObjects(objects.data(), objects.size()));
  }
  // The caller may change the subviews while it walks through them.
  return subview_array_->retain().autorelease();
}

void View::add_subview(UIView view) {
  insert(view, subviews_.size());
}

void View::insert_subview_at_index(UIView view, NSInteger index) {
  insert(view, static_cast<std::size_t>(std::max<NSInteger>(index, 0)));
}

void View::insert_subview_above(UIView view, UIView sibling) {
  const std::size_t place = index_of(sibling);
  insert(view, place == subviews_.size() ? place : place + 1);
}

void View::insert_subview_below(UIView view, UIView sibling) {
  insert(view, index_of(sibling));
}

void View::exchange_subviews(NSInteger first, NSInteger second) {
  const auto count = static_cast<NSInteger>(subviews_.size());
  if (first == second || std::min(first, second) < 0 || std::max(first, second) >= count) return;
  const UIView lower = subviews_[static_cast<std::size_t>(std::min(first, second))].get();
  const UIView upper = subviews_[static_cast<std::size_t>(std::max(first, second))].get();
  reorder(lower, static_cast<std::size_t>(std::max(first, second)));
  reorder(upper, static_cast<std::size_t>(std::min(first, second)));
}

void View::bring_subview_to_front(UIView view) {
  if (index_of(view) < subviews_.size()) reorder(view, subviews_.size() - 1);
}

void View::send_subview_to_back(UIView view) {
  if (index_of(view) < subviews_.size()) reorder(view, 0);
}

void View::remove_from_superview() {
  if (superview_) objc::state_of<View>(superview_).detach(self);
}

UIView View::view_with_tag(NSInteger tag) {
  if (tag_ == tag) return self;
  for (const auto& child : subviews_) {
    if (const UIView found = child->viewWithTag(tag)) return found;
  }
  return nil;
}

BOOL View::is_descendant_of_view(UIView view) const {
  for (UIView ancestor = self; ancestor; ancestor = ancestor.superview()) {
    if (ancestor == view) return YES;
  }
  return NO;
}

std::size_t View::index_of(UIView view) const {
  const auto found = std::find_if(subviews_.begin(), subviews_.end(),
                                  [view](const auto& child) { return child.get() == view; });
  return static_cast<std::size_t>(found - subviews_.begin());
}

void View::insert(UIView view, std::size_t index) {
  if (!view) return;
  if (is_descendant_of_view(view)) {
    spdlog::error("a view cannot be added to itself or to one of its subviews");
    return;
  }
  const std::size_t present = index_of(view);
  if (present < subviews_.size()) {
    reorder(view, present < index ? index - 1 : index);
    return;
  }
  View& child = objc::state_of<View>(view);
  const auto kept = objc::Ref<UIView>::retain(view);
  const UIWindow window = window_;
  const bool changes_window = child.window_ != window;
  const UIColor old_tint = view.tintColor();
  if (child.superview_) child.superview_.willRemoveSubview(view);
  if (changes_window) child.announce_window(window);
  view.willMoveToSuperview(self);
  if (child.superview_) objc::state_of<View>(child.superview_).detach_quietly(view);
  // The messages sent during the move may have changed the children.
  index = std::min(index, subviews_.size());
  subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(index), kept);
  subview_array_.reset();
  child.superview_ = self;
  put_layer_at(view, index);
  if (changes_window) child.settle_in_window(window);
  view.didMoveToSuperview();
  self.didAddSubview(view);
  if (!child.tint_color_ && !old_tint.isEqual(view.tintColor())) child.announce_tint();
}

void View::reorder(UIView view, std::size_t index) {
  const std::size_t present = index_of(view);
  index = std::min(index, subviews_.size() - 1);
  if (present == index) return;
  const auto kept = subviews_[present];
  subviews_.erase(subviews_.begin() + static_cast<std::ptrdiff_t>(present));
  subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(index), kept);
  subview_array_.reset();
  put_layer_at(view, index);
}

void View::put_layer_at(UIView view, std::size_t index) {
  const CALayer layer = view.layer();
  if (index + 1 < subviews_.size()) {
    layer_->insertSublayerBelow(layer, subviews_[index + 1]->layer());
  } else {
    layer_->addSublayer(layer);
  }
}

void View::detach_quietly(UIView view) {
  const std::size_t place = index_of(view);
  if (place == subviews_.size()) return;
  objc::state_of<View>(view).superview_ = nil;
  view.layer().removeFromSuperlayer();
  subviews_.erase(subviews_.begin() + static_cast<std::ptrdiff_t>(place));
  subview_array_.reset();
}

void View::detach(UIView view) {
  const auto kept = objc::Ref<UIView>::retain(view);
  View& child = objc::state_of<View>(view);
  const UIResponder focus = first_responder();
  if (focus && focus.isKindOfClass(UIView::cls()) &&
      objc::cast<UIView>(focus).isDescendantOfView(view)) {
    focus.resignFirstResponder();
  }
  const bool changes_window = static_cast<bool>(child.window_);
  self.willRemoveSubview(view);
  if (changes_window) child.announce_window(nil);
  view.willMoveToSuperview(nil);
  detach_quietly(view);
  if (changes_window) child.settle_in_window(nil);
  view.didMoveToSuperview();
}

void View::announce_window(UIWindow window) {
  self.willMoveToWindow(window);
  const auto children = subviews_;
  for (const auto& child : children)
    objc::state_of<View>(child.get()).announce_window(window);
}

void View::settle_in_window(UIWindow window) {
  window_ = window;
  // A view off screen does not move: observers of the animation's end are told that it was cut
  // short.
  if (!window) layer_->removeAllAnimations();
  self.didMoveToWindow();
  const auto children = subviews_;
  for (const auto& child : children)
    objc::state_of<View>(child.get()).settle_in_window(window);
}

}  // namespace host::uikit
