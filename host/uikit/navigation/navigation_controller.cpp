#include "host/uikit/navigation/navigation_controller.h"

#include <algorithm>

#include "host/foundation/exception.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {
namespace {

constexpr double kBarDuration = 0.25;

/// Returns the scroll view that a page is or begins with; any other page handles bars that cover it
/// itself.
UIScrollView scroll_view_of(UIView view) {
  const auto is_scroll_view = [](UIView one) { return one.isKindOfClass(UIScrollView::cls()); };
  if (is_scroll_view(view)) return objc::cast<UIScrollView>(view);
  const auto first = objc::cast<UIView>(view.subviews().firstObject());
  return first && is_scroll_view(first) ? objc::cast<UIScrollView>(first) : UIScrollView();
}

void keep_clear(UIScrollView view, CGFloat top) {
  UIEdgeInsets inset = view.contentInset();
  if (inset.top == top) return;
  const CGPoint offset = view.contentOffset();
  const bool at_top = offset.y <= -inset.top;
  inset.top = top;
  view.setContentInset(inset);
  UIEdgeInsets indicators = view.scrollIndicatorInsets();
  indicators.top = top;
  view.setScrollIndicatorInsets(indicators);
  if (at_top) view.setContentOffset({offset.x, -top});
}

}  // namespace

NavigationController::~NavigationController() {
  if (bar_) bar_state().set_back_target(nil, nullptr);
  if (!pan_) return;
  pan_->setDelegate(nil);
  pan_->removeTarget(self, nullptr);
}

UINavigationController NavigationController::init_with_root(UIViewController root) {
  if (!super<UINavigationController>("init"_sel)) return nil;
  self.pushViewController(root, NO);
  return self;
}

UINavigationBar NavigationController::bar() {
  if (bar_) return bar_.get();
  const CGFloat width = UIScreen::mainScreen().bounds().size.width;
  bar_ = objc::Ref<UINavigationBar>::adopt(UINavigationBar::alloc().initWithFrame(
      {0, status_bar_height(), width, kNavigationBarHeight}));
  bar_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  bar_state().set_back_target(self, "_backPressed"_sel);
  return bar_.get();
}

UIGestureRecognizer NavigationController::pop_gesture() {
  if (pan_) return pan_.get();
  pan_ = objc::Ref<UIPanGestureRecognizer>::adopt(
      UIPanGestureRecognizer::alloc().initWithTarget(self, "_handlePan:"_sel));
  pan_->setDelegate(self);
  return pan_.get();
}

void NavigationController::view_did_load() {
  super<>("viewDidLoad"_sel);
  const UIView view = self.view();
  view.setClipsToBounds(YES);
  container_ = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(view.bounds()));
  container_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth |
                                  UIViewAutoresizingFlexibleHeight);
  container_->addGestureRecognizer(pop_gesture());
  view.addSubview(container_.get());
  bar().setHidden(bar_hidden_);
  view.addSubview(bar());
  show_items();
}

void NavigationController::view_will_appear(BOOL animated) {
  super<>("viewWillAppear:"_sel, animated);
  self.view();
  visible_ = true;
  if (change_ || pages_.empty()) return;
  top().view();
  top().viewWillAppear(animated);
  // The stack may have changed while it was off screen.
  for (const UIView view : objc::Ref<NSArray>::retain(container_->subviews())->of<UIView>())
    if (view != top().view()) view.removeFromSuperview();
  install(top());
}

void NavigationController::view_did_appear(BOOL animated) {
  super<>("viewDidAppear:"_sel, animated);
  if (!change_) top().viewDidAppear(animated);
}

void NavigationController::view_will_disappear(BOOL animated) {
  super<>("viewWillDisappear:"_sel, animated);
  restore();
  top().viewWillDisappear(animated);
}

void NavigationController::view_did_disappear(BOOL animated) {
  super<>("viewDidDisappear:"_sel, animated);
  visible_ = false;
  top().viewDidDisappear(animated);
}

NSArray NavigationController::pages() const {
  const auto pages = NSMutableArray::array();
  for (const Page& page : pages_)
    pages.addObject(page.get());
  return pages;
}

UIViewController NavigationController::visible() const {
  const UIViewController presented = self.presentedViewController();
  return presented ? presented : top();
}

NSArray NavigationController::items() const {
  const auto items = NSMutableArray::array();
  for (const Page& page : pages_)
    items.addObject(page->navigationItem());
  return items;
}

void NavigationController::show_items() {
  if (self.isViewLoaded()) bar().setItems(items());
}

void NavigationController::add_page(UIViewController page) {
  self.addChildViewController(page);
  page.didMoveToParentViewController(self);
}

void NavigationController::install(UIViewController page) {
  const UIView view = page.view();
  view.setFrame(container_->bounds());
  view.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  fit(page);
  if (view.superview() != container_.get()) container_->addSubview(view);
}

void NavigationController::fit(UIViewController page) const {
  if (!page.automaticallyAdjustsScrollViewInsets()) return;
  const UIScrollView scrolled = scroll_view_of(page.view());
  const CGFloat covered = bar_hidden_ ? status_bar_height() : CGRect(bar_->frame()).max_y();
  if (scrolled) keep_clear(scrolled, covered);
}

void NavigationController::push(UIViewController page, BOOL animated) {
  if (!page)
    foundation::raise("NSInvalidArgumentException"_ns,
                      "Application tried to push a nil view controller on target " +
                          foundation::plain_description(self) + ".");
  if (page.parentViewController() == self) return;
  restore();
  Page from = pages_.empty() ? Page() : pages_.back();
  add_page(page);
  pages_.push_back(Page::retain(page));
  change_to_top(std::move(from), NavigationBar::Direction::Forwards, {}, animated);
}

UIViewController NavigationController::pop(BOOL animated) {
  restore();
  if (pages_.size() < 2) return nil;
  const NSArray popped = self.popToViewController(pages_[pages_.size() - 2].get(), animated);
  return objc::cast<UIViewController>(popped.firstObject());
}

NSArray NavigationController::pop_to_root(BOOL animated) {
  return pages_.empty() ? NSArray() : self.popToViewController(pages_.front().get(), animated);
}

NSArray NavigationController::pop_to(UIViewController page, BOOL animated) {
  restore();
  const auto is_page = [page](const Page& one) { return one.get() == page; };
  const auto found = std::find_if(pages_.begin(), pages_.end(), is_page);
  if (found == pages_.end() || found + 1 == pages_.end()) return nil;
  std::vector<Page> leaving(found + 1, pages_.end());
  pages_.erase(found + 1, pages_.end());
  const auto popped = NSMutableArray::array();
  for (const Page& one : leaving)
    popped.addObject(one.get());
  Page from = leaving.back();
  change_to_top(std::move(from), NavigationBar::Direction::Backwards, std::move(leaving), animated);
  return popped;
}

void NavigationController::set_pages(NSArray pages, BOOL animated) {
  restore();
  std::vector<Page> before = std::exchange(pages_, {});
  if (pages) {
    for (const UIViewController page : pages.of<UIViewController>()) {
      add_page(page);
      pages_.push_back(Page::retain(page));
    }
  }
  Page from = before.empty() ? Page() : before.back();
  const auto stays = [this](const Page& page) {
    return std::any_of(pages_.begin(), pages_.end(),
                       [&](const Page& one) { return one.get() == page.get(); });
  };
  std::erase_if(before, stays);
  if (from && from.get() == top()) {
    dismiss_pages(before);
    return show_items();
  }
  change_to_top(std::move(from), NavigationBar::Direction::Forwards, std::move(before), animated);
}

void NavigationController::back_pressed() {
  if (!change_) self.popViewControllerAnimated(YES);
}

void NavigationController::set_bar_hidden(BOOL hidden) {
  self.setNavigationBarHidden(hidden, NO);
}

void NavigationController::set_bar_hidden_animated(BOOL hidden, BOOL animated) {
  if (bar_hidden_ == hidden) return;
  bar_hidden_ = hidden ? YES : NO;
  const UINavigationBar shown = bar();
  if (!hidden) shown.setHidden(NO);
  const auto change = [this, kept = objc::Ref<UINavigationController>::retain(self)] {
    bar_->setAlpha(bar_hidden_ ? 0 : 1);
    if (top() && top().isViewLoaded()) fit(top());
  };
  const auto done = [this, kept = objc::Ref<UINavigationController>::retain(self)](BOOL) {
    bar_->setHidden(bar_hidden_);
  };
  if (animated)
    return UIView::animateWithDuration(kBarDuration, objc::block(change), objc::block(done));
  change();
  done(YES);
}

void export_navigation_controller() {
  using Controller = NavigationController;
  objc::ClassBuilder("UINavigationController", "UIViewController")
      .state<Controller>()
      .method<&Controller::init_with_root>("initWithRootViewController:")
      .method<&Controller::view_did_load>("viewDidLoad")
      .method<&Controller::view_will_appear>("viewWillAppear:")
      .method<&Controller::view_did_appear>("viewDidAppear:")
      .method<&Controller::view_will_disappear>("viewWillDisappear:")
      .method<&Controller::view_did_disappear>("viewDidDisappear:")
      .method<&Controller::pages>("viewControllers")
      .method<&Controller::set_pages>("setViewControllers:animated:")
      .method<&Controller::top>("topViewController")
      .method<&Controller::visible>("visibleViewController")
      .method<&Controller::push>("pushViewController:animated:")
      .method<&Controller::pop>("popViewControllerAnimated:")
      .method<&Controller::pop_to>("popToViewController:animated:")
      .method<&Controller::pop_to_root>("popToRootViewControllerAnimated:")
      .method<&Controller::bar>("navigationBar")
      .method<&Controller::is_bar_hidden>("isNavigationBarHidden")
      .method<&Controller::set_bar_hidden>("setNavigationBarHidden:")
      .method<&Controller::set_bar_hidden_animated>("setNavigationBarHidden:animated:")
      .method<&Controller::pop_gesture>("interactivePopGestureRecognizer")
      .method<&Controller::back_pressed>("_backPressed")
      .method<&Controller::handle_pan>("_handlePan:")
      .method<&Controller::should_receive_touch>("gestureRecognizer:shouldReceiveTouch:")
      .method<&Controller::should_begin>("gestureRecognizerShouldBegin:")
      .method<&Controller::should_be_required_to_fail>(
          "gestureRecognizer:shouldBeRequiredToFailByGestureRecognizer:")
      .finish();
}

}  // namespace host::uikit
