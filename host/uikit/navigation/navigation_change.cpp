#include <algorithm>

#include "host/uikit/navigation/navigation_controller.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {
namespace {

constexpr double kDuration = 0.4;
constexpr CGFloat kCritically = 1;
/// A finger that lands within this distance of the left edge may drag the page away.
constexpr CGFloat kEdge = 20;
/// From this speed on, in points per second, a lifting finger decides by its direction rather than
/// by its position.
constexpr CGFloat kFling = 300;
constexpr CGFloat kHalf = 0.5;

}  // namespace

void NavigationController::change_to_top(Page from, NavigationBar::Direction direction,
                                         std::vector<Page> leaving, BOOL animated) {
  const bool slides = animated && visible_ && from && top() && self.view().window();
  if (slides) {
    begin_change({std::move(from), pages_.back(), direction, false, nullptr, std::move(leaving)});
    return run_change(0);
  }
  if (!visible_) {
    dismiss_pages(leaving);
    return show_items();
  }
  from->viewWillDisappear(NO);
  if (top()) {
    top().view();
    top().viewWillAppear(NO);
  }
  if (from && from->isViewLoaded()) from->view().removeFromSuperview();
  if (top()) install(top());
  show_items();
  from->viewDidDisappear(NO);
  top().viewDidAppear(NO);
  dismiss_pages(leaving);
}

void NavigationController::begin_change(Change change) {
  ++changes_;
  const auto finger = change.by_finger ? pan_.get() : UIPanGestureRecognizer();
  change.hold = std::make_unique<TouchHold>(self.view(), finger);
  change_ = std::make_unique<Change>(std::move(change));
  const UIViewController to = change_->to.get();
  to.view();
  change_->from->viewWillDisappear(YES);
  to.viewWillAppear(YES);
  // Either page may have changed the stack.
  if (!change_ || change_->to.get() != to) return;
  const bool forwards = change_->direction == NavigationBar::Direction::Forwards;
  const UIView upper = (forwards ? change_->to : change_->from)->view();
  const UIView lower = (forwards ? change_->from : change_->to)->view();
  UIView::performWithoutAnimation(objc::block([&, this] {
    install(to);
    to.view().layoutIfNeeded();
    change_->slide = std::make_unique<PageSlide>(container_.get(), upper, lower);
    bar_state().begin_change(items(), change_->direction);
    show_change(0);
  }));
}

void NavigationController::show_change(CGFloat progress) {
  const bool forwards = change_->direction == NavigationBar::Direction::Forwards;
  change_->slide->show(forwards ? progress : 1 - progress);
  bar_state().show_change(progress);
}

void NavigationController::run_change(CGFloat velocity) {
  if (!change_ || !change_->slide) return;
  const auto kept = objc::Ref<UINavigationController>::retain(self);
  UIView::animateWithDuration(
      kDuration, 0, kCritically, velocity, UIViewAnimationOptionBeginFromCurrentState,
      objc::block([this] { show_change(1); }), objc::block([this, kept, change = changes_](BOOL) {
        if (change == changes_) finish_change();
      }));
}

void NavigationController::finish_change() {
  if (!change_) return;
  ++changes_;
  const auto done = std::exchange(change_, nullptr);
  UIView::performWithoutAnimation(objc::block([&, this] {
    done->slide.reset();
    if (done->from->isViewLoaded()) done->from->view().removeFromSuperview();
    install(done->to.get());
    bar_state().finish_change();
  }));
  done->hold->end();
  done->from->viewDidDisappear(YES);
  done->to->viewDidAppear(YES);
  dismiss_pages(done->leaving);
}

// The finger has released the page: it slides back, and both pages are where they were.
void NavigationController::abandon_change(CGFloat velocity) {
  const auto kept = objc::Ref<UINavigationController>::retain(self);
  for (const Page& page : change_->leaving)
    pages_.push_back(page);
  std::swap(change_->from, change_->to);
  change_->leaving.clear();
  change_->from->viewWillDisappear(YES);
  change_->to->viewWillAppear(YES);
  const auto done = [this, kept, change = changes_](BOOL) {
    if (change != changes_ || !change_) return;
    bar_state().abandon_change();
    finish_change();
  };
  UIView::animateWithDuration(kDuration, 0, kCritically, velocity,
                              UIViewAnimationOptionBeginFromCurrentState,
                              objc::block([this] { show_change(0); }), objc::block(done));
}

/// Ends a change that is under way at once.
void NavigationController::restore() {
  if (!change_) return;
  if (change_->by_finger && pan_) {
    // The drag no longer controls the page.
    pan_->setEnabled(NO);
    pan_->setEnabled(YES);
  }
  if (change_ && change_->slide) finish_change();
}

void NavigationController::dismiss_pages(const std::vector<Page>& pages) {
  for (const Page& page : pages) {
    page->willMoveToParentViewController(nil);
    page->removeFromParentViewController();
  }
}

BOOL NavigationController::should_receive_touch(UIGestureRecognizer, UITouch touch) {
  const bool at_edge = touch.locationInView(self.view()).x <= kEdge;
  return at_edge && pages_.size() > 1 && !change_ ? YES : NO;
}

BOOL NavigationController::should_begin(UIGestureRecognizer) {
  const CGPoint moved = pan_->translationInView(self.view());
  return moved.x > std::abs(moved.y) && pages_.size() > 1 && !change_ ? YES : NO;
}

void NavigationController::handle_pan(UIPanGestureRecognizer recognizer) {
  const CGFloat width = self.view().bounds().size.width;
  const CGFloat moved = std::clamp(recognizer.translationInView(self.view()).x, 0.0, width);
  const CGFloat velocity = recognizer.velocityInView(self.view()).x;
  switch (recognizer.state()) {
    case UIGestureRecognizerStateBegan: {
      Page leaving = std::move(pages_.back());
      pages_.pop_back();
      begin_change(
          {leaving, pages_.back(), NavigationBar::Direction::Backwards, true, nullptr, {leaving}});
      break;
    }
    case UIGestureRecognizerStateChanged:
      if (change_ && change_->slide) show_change(moved / width);
      break;
    case UIGestureRecognizerStateEnded:
    case UIGestureRecognizerStateCancelled: {
      if (!change_ || !change_->slide) break;
      change_->by_finger = false;
      const bool flung = std::abs(velocity) >= kFling;
      const bool leaves = recognizer.state() == UIGestureRecognizerStateEnded &&
                          (flung ? velocity > 0 : moved > width * kHalf);
      const CGFloat left = leaves ? width - moved : moved;
      const CGFloat relative = left > 1 ? std::abs(velocity) / left : 0;
      leaves ? run_change(flung ? relative : 0) : abandon_change(flung ? relative : 0);
      break;
    }
    default:
      break;
  }
}

}  // namespace host::uikit
