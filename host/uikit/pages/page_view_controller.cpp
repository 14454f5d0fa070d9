#include "host/uikit/pages/page_view_controller.h"

#include <utility>

namespace host::uikit {
namespace {

constexpr CGFloat kDotsHeight = 37;
/// The shown page is in the middle of three places.
constexpr NSInteger kMiddleIndex = 1;
constexpr NSInteger kPlaces = 3;

}  // namespace

PageViewController::~PageViewController() {
  if (scroll_) scroll_->setDelegate(nil);
  if (dots_) dots_->removeTarget(self, nullptr, UIControlEventValueChanged);
}

UIPageViewController PageViewController::init() {
  return self.initWithTransitionStyle(UIPageViewControllerTransitionStyleScroll,
                                      UIPageViewControllerNavigationOrientationHorizontal, nil);
}

// Pages always lie side by side: other styles are not implemented.
UIPageViewController PageViewController::init_with_style(UIPageViewControllerTransitionStyle,
                                                         UIPageViewControllerNavigationOrientation,
                                                         NSDictionary) {
  if (!super<UIPageViewController>("init"_sel)) return nil;
  // The scroll view belongs to the container rather than to a page; bars must not shift it.
  self.setAutomaticallyAdjustsScrollViewInsets(NO);
  return self;
}

void PageViewController::view_did_load() {
  super<>("viewDidLoad"_sel);
  const UIView view = self.view();
  view.setClipsToBounds(YES);
  scroll_ = objc::Ref<UIScrollView>::adopt(UIScrollView::alloc().initWithFrame(view.bounds()));
  scroll_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  scroll_->setPagingEnabled(YES);
  scroll_->setShowsHorizontalScrollIndicator(NO);
  scroll_->setShowsVerticalScrollIndicator(NO);
  scroll_->setAlwaysBounceHorizontal(YES);
  scroll_->setScrollsToTop(NO);
  scroll_->setDelegate(self);
  view.addSubview(scroll_.get());
  if (current_) arrange();
}

void PageViewController::view_did_layout_subviews() {
  super<>("viewDidLayoutSubviews"_sel);
  report_appearance();
  const CGSize size = self.view().bounds().size;
  const bool has_dots = dots_ && !dots_->isHidden();
  const CGFloat height = size.height - (has_dots ? kDotsHeight : 0);
  if (dots_) dots_->setFrame({0, size.height - kDotsHeight, size.width, kDotsHeight});
  const CGRect place{0, 0, size.width, height};
  if (scroll_->frame() == place) return;
  scroll_->setFrame(place);
  if (current_ && !sliding_) arrange();
}

void PageViewController::view_will_appear(BOOL animated) {
  super<>("viewWillAppear:"_sel, animated);
  current_->viewWillAppear(animated);
  seen_ = current_;
}

void PageViewController::view_did_appear(BOOL animated) {
  super<>("viewDidAppear:"_sel, animated);
  current_->viewDidAppear(animated);
}

void PageViewController::view_will_disappear(BOOL animated) {
  super<>("viewWillDisappear:"_sel, animated);
  if (is_seen()) current_->viewWillDisappear(animated);
}

void PageViewController::view_did_disappear(BOOL animated) {
  super<>("viewDidDisappear:"_sel, animated);
  if (std::exchange(seen_, {})) current_->viewDidDisappear(animated);
}

NSArray PageViewController::pages() const {
  return current_ ? NSArray::arrayWithObject(current_.get()) : NSArray::array();
}

void PageViewController::set_data_source(objc::Object source) {
  data_source_ = source;
  if (current_ && scroll_ && !sliding_) arrange();
}

/// The view may have been put on the screen without its controller being told.
void PageViewController::report_appearance() {
  if (is_seen() || !current_ || !self.view().window()) return;
  seen_ = current_;
  current_->viewWillAppear(NO);
  current_->viewDidAppear(NO);
}

UIViewController PageViewController::neighbour(Side side) const {
  const auto source = objc::cast<UIPageViewControllerDataSource>(data_source_);
  if (!source || !current_) return nil;
  return side == kBefore ? source.viewControllerBefore(self, current_.get())
                         : source.viewControllerAfter(self, current_.get());
}

void PageViewController::add_page(const Page& page) {
  if (!page || page->parentViewController() == self) return;
  self.addChildViewController(page.get());
  page->didMoveToParentViewController(self);
}

void PageViewController::remove_page(Page& page) {
  const Page leaving = std::exchange(page, {});
  if (!leaving || leaving.get() == current_.get()) return;
  if (leaving->isViewLoaded()) leaving->view().removeFromSuperview();
  leaving->willMoveToParentViewController(nil);
  leaving->removeFromParentViewController();
}

void PageViewController::update_neighbours() {
  Page before = Page::retain(neighbour(kBefore));
  Page after = Page::retain(neighbour(kAfter));
  if (before.get() != before_.get()) remove_page(before_);
  if (after.get() != after_.get()) remove_page(after_);
  before_ = std::move(before);
  after_ = std::move(after);
}

void PageViewController::put(const Page& page, NSInteger slot) const {
  const UIView view = page->view();
  const CGSize size = scroll_->bounds().size;
  view.setFrame({static_cast<CGFloat>(slot) * size.width, 0, size.width, size.height});
  if (view.superview() != scroll_.get()) scroll_->addSubview(view);
}

/// Puts the shown page in the middle, and leaves no room to scroll towards a missing neighbour.
void PageViewController::arrange() {
  arranging_ = true;
  update_neighbours();
  add_page(current_);
  UIView::performWithoutAnimation(objc::block([this] {
    const CGSize size = scroll_->bounds().size;
    scroll_->setContentSize({static_cast<CGFloat>(kPlaces) * size.width, size.height});
    scroll_->setContentInset({0, before_ ? 0 : -size.width, 0, after_ ? 0 : -size.width});
    put(current_, kMiddleIndex);
    for (const Page* beside : {&before_, &after_})
      if (*beside && (*beside)->isViewLoaded() && beside->get() != current_.get())
        (*beside)->view().removeFromSuperview();
    scroll_->setContentOffset({size.width, 0});
  }));
  arranging_ = false;
}

void PageViewController::show_neighbour(Side side) {
  const Page& page = side == kBefore ? before_ : after_;
  if (!page || coming_.get() == page.get()) return;
  if (coming_ && is_seen()) {
    coming_->viewWillDisappear(YES);
    coming_->viewDidDisappear(YES);
  }
  const bool is_first = !coming_;
  coming_ = page;
  add_page(page);
  page->view();
  if (is_seen()) {
    if (is_first) current_->viewWillDisappear(YES);
    page->viewWillAppear(YES);
  }
  UIView::performWithoutAnimation(
      objc::block([&, this] { put(page, side == kBefore ? kMiddleIndex - 1 : kMiddleIndex + 1); }));
}

/// Only a data source that counts its pages gets dots, and it may remove them again.
void PageViewController::update_dots() {
  const auto source = objc::cast<UIPageViewControllerDataSource>(data_source_);
  if (!source || !source.respondsToSelector("presentationCountForPageViewController:"_sel) ||
      !source.respondsToSelector("presentationIndexForPageViewController:"_sel))
    return;
  if (!dots_) {
    dots_ = objc::Ref<UIPageControl>::adopt(UIPageControl::alloc().initWithFrame({}));
    dots_->setPageIndicatorTintColor(UIColor::colorWithWhite(0.8, 1));
    dots_->setCurrentPageIndicatorTintColor(UIColor::colorWithWhite(0.35, 1));
    dots_->addTarget(self, "_dotTapped:"_sel, UIControlEventValueChanged);
    self.view().addSubview(dots_.get());
  }
  dots_->setNumberOfPages(source.presentationCount(self));
  show_dot(source.presentationIndex(self));
  self.view().setNeedsLayout();
}

void PageViewController::show_dot(NSInteger dot) {
  shown_dot_ = dot;
  if (dots_) dots_->setCurrentPage(dot);
}

/// The control has already moved its dot; the page follows if it exists.
void PageViewController::dot_tapped(UIPageControl dots) {
  const NSInteger wanted = dots.currentPage();
  const bool after = wanted > shown_dot_;
  const UIViewController page = neighbour(after ? kAfter : kBefore);
  if (!page || sliding_) return dots.setCurrentPage(shown_dot_);
  shown_dot_ = wanted;
  slide_to(Page::retain(page), after ? kAfter : kBefore, nullptr);
}

void export_page_view_controller() {
  using Pages = PageViewController;
  objc::ClassBuilder("UIPageViewController", "UIViewController")
      .state<Pages>()
      .method<&Pages::init>("init")
      .method<&Pages::init_with_style>("initWithTransitionStyle:navigationOrientation:options:")
      .method<&Pages::data_source>("dataSource")
      .method<&Pages::set_data_source>("setDataSource:")
      .method<&Pages::delegate>("delegate")
      .method<&Pages::set_delegate>("setDelegate:")
      .method<&Pages::pages>("viewControllers")
      .method<&Pages::set_pages>("setViewControllers:direction:animated:completion:")
      .method<&Pages::view_did_load>("viewDidLoad")
      .method<&Pages::view_did_layout_subviews>("viewDidLayoutSubviews")
      .method<&Pages::view_will_appear>("viewWillAppear:")
      .method<&Pages::view_did_appear>("viewDidAppear:")
      .method<&Pages::view_will_disappear>("viewWillDisappear:")
      .method<&Pages::view_did_disappear>("viewDidDisappear:")
      .method<&Pages::will_begin_dragging>("scrollViewWillBeginDragging:")
      .method<&Pages::did_scroll>("scrollViewDidScroll:")
      .method<&Pages::did_end_dragging>("scrollViewDidEndDragging:willDecelerate:")
      .method<&Pages::did_end_decelerating>("scrollViewDidEndDecelerating:")
      .method<&Pages::did_end_animation>("scrollViewDidEndScrollingAnimation:")
      .method<&Pages::dot_tapped>("_dotTapped:")
      .finish();
}

}  // namespace host::uikit
