#include <algorithm>
#include <cmath>
#include <utility>

#include "host/uikit/pages/page_view_controller.h"

namespace host::uikit {
namespace {

/// The shown page is in the middle of three places.
constexpr CGFloat kMiddlePlace = 1;

UIViewController first_in(NSArray pages) {
  return pages ? objc::cast<UIViewController>(pages.firstObject()) : UIViewController();
}

}  // namespace

void PageViewController::will_begin_dragging(UIScrollView) {
  if (sliding_) return;
  // The neighbours may have changed since the page came.
  if (!coming_) arrange();
}

void PageViewController::did_scroll(UIScrollView) {
  if (arranging_ || sliding_ || !current_) return;
  const CGFloat moved = scroll_->contentOffset().x - width();
  if (moved < 0) show_neighbour(kBefore);
  if (moved > 0) show_neighbour(kAfter);
}

void PageViewController::did_end_dragging(UIScrollView, BOOL decelerates) {
  if (!decelerates) settle();
}

void PageViewController::did_end_decelerating(UIScrollView) {
  settle();
}

void PageViewController::did_end_animation(UIScrollView) {
  if (sliding_) finish_slide();
}

void PageViewController::settle() {
  if (sliding_ || !current_) return;
  const CGFloat place = std::round(scroll_->contentOffset().x / std::max(width(), 1.0));
  if (place < kMiddlePlace && before_) return become(kBefore);
  if (place > kMiddlePlace && after_) return become(kAfter);
  const Page came = std::exchange(coming_, {});
  if (!came) return;
  if (is_seen()) {
    came->viewWillDisappear(YES);
    current_->viewWillAppear(YES);
    came->viewDidDisappear(YES);
    current_->viewDidAppear(YES);
  }
  arrange();
  tell_turned(current_, false);
}

void PageViewController::become(Side side) {
  const Page previous = current_;
  show_neighbour(side);
  coming_ = {};
  if (is_seen()) seen_ = side == kBefore ? before_ : after_;
  current_ = side == kBefore ? before_ : after_;
  Page& passed = side == kBefore ? after_ : before_;
  if (passed.get() == current_.get()) passed = {};
  show_dot(shown_dot_ + (side == kBefore ? -1 : 1));
  if (is_seen()) {
    previous->viewDidDisappear(YES);
    current_->viewDidAppear(YES);
  }
  if (previous->isViewLoaded()) previous->view().removeFromSuperview();
  arrange();
  tell_turned(previous, true);
}

void PageViewController::tell_turned(const Page& previous, bool completed) {
  const auto delegate = objc::cast<UIPageViewControllerDelegate>(delegate_);
  const objc::Sel selector =
      "pageViewController:didFinishAnimating:previousViewControllers:transitionCompleted:"_sel;
  if (delegate && delegate.respondsToSelector(selector))
    delegate.didFinishAnimating(self, YES, NSArray::arrayWithObject(previous.get()),
                                completed ? YES : NO);
}

void PageViewController::set_pages(NSArray pages, UIPageViewControllerNavigationDirection direction,
                                   BOOL animated, objc::Block<void(BOOL)> completion) {
  if (sliding_) finish_slide();
  Page page = Page::retain(first_in(pages));
  self.view();
  if (page && animated && current_ && page.get() != current_.get() && self.view().window()) {
    const bool forwards = direction == UIPageViewControllerNavigationDirectionForward;
    slide_to(std::move(page), forwards ? kAfter : kBefore, completion);
  } else {
    show_at_once(std::move(page));
    const objc::OwnedBlock<void(BOOL)> done(completion);
    done.get()(YES);
  }
  update_dots();
}

void PageViewController::show_at_once(Page page) {
  coming_ = {};
  Page leaving = std::exchange(current_, std::move(page));
  if (leaving && leaving.get() != current_.get()) {
    if (is_seen()) leaving->viewWillDisappear(NO);
    const Page told = leaving;
    remove_page(leaving);
    if (is_seen()) told->viewDidDisappear(NO);
  }
  if (!current_) return;
  current_->view();
  const bool seen = is_seen() || self.view().window();
  if (seen) current_->viewWillAppear(NO);
  arrange();
  if (!seen) return;
  seen_ = current_;
  current_->viewDidAppear(NO);
}

void PageViewController::slide_to(Page page, Side side, objc::Block<void(BOOL)> completion) {
  coming_ = {};
  completion_ = objc::OwnedBlock<void(BOOL)>(completion);
  Page& place = side == kBefore ? before_ : after_;
  if (place.get() != page.get()) remove_page(place);
  place = std::move(page);
  UIView::performWithoutAnimation(objc::block([this] {
    scroll_->setContentInset({});
    scroll_->setContentOffset({width(), 0});
  }));
  show_neighbour(side);
  sliding_ = true;
  hold_ = std::make_unique<TouchHold>(self.view());
  scroll_->setContentOffset({side == kBefore ? 0 : 2 * width(), 0}, YES);
}

void PageViewController::finish_slide() {
  sliding_ = false;
  hold_.reset();
  const Page previous = std::exchange(current_, std::exchange(coming_, {}));
  if (is_seen()) seen_ = current_;
  if (before_.get() == current_.get()) before_ = {};
  if (after_.get() == current_.get()) after_ = {};
  if (previous->isViewLoaded()) previous->view().removeFromSuperview();
  if (is_seen()) {
    previous->viewDidDisappear(YES);
    current_->viewDidAppear(YES);
  }
  arrange();
  const auto done = std::exchange(completion_, {});
  done.get()(YES);
}

}  // namespace host::uikit
