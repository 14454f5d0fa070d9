#include "host/uikit/scroll/page_control.h"

#include <algorithm>

#include "host/runtime/on_pixel.h"
#include "platform/QuartzCore/CATransaction.h"

namespace host::uikit {
namespace {

constexpr CGFloat kDotSize = 7;
constexpr CGFloat kDotDistance = 16;
constexpr CGFloat kHeight = 37;
constexpr CGFloat kDimAlpha = 0.2;

/// Changes standalone layers, which have no view to disable their animations.
class WithoutActions {
 public:
  WithoutActions() {
    CATransaction::begin();
    CATransaction::setDisableActions(YES);
  }
  ~WithoutActions() { CATransaction::commit(); }
  WithoutActions(const WithoutActions&) = delete;
  WithoutActions& operator=(const WithoutActions&) = delete;
};

}  // namespace

PageControl::~PageControl() {
  for (const auto& dot : dots_)
    dot->removeFromSuperlayer();
}

void PageControl::set_number_of_pages(NSInteger pages) {
  pages = std::max<NSInteger>(pages, 0);
  if (pages == pages_) return;
  pages_ = pages;
  current_ = std::clamp<NSInteger>(current_, 0, std::max<NSInteger>(pages_ - 1, 0));
  match_dots();
}

void PageControl::set_current_page(NSInteger page) {
  page = std::clamp<NSInteger>(page, 0, std::max<NSInteger>(pages_ - 1, 0));
  if (page == current_) return;
  current_ = page;
  color_dots();
}

void PageControl::set_hides_for_single_page(BOOL hides) {
  hides_for_single_page_ = hides;
  match_dots();
}

void PageControl::set_tint(UIColor color) {
  tint_.reset(color);
  color_dots();
}

void PageControl::set_current_tint(UIColor color) {
  current_tint_.reset(color);
  color_dots();
}

void PageControl::match_dots() {
  const WithoutActions scope;
  const bool hidden = hides_for_single_page_ && pages_ <= 1;
  const auto wanted = static_cast<std::size_t>(hidden ? 0 : pages_);
  while (dots_.size() > wanted) {
    dots_.back()->removeFromSuperlayer();
    dots_.pop_back();
  }
  while (dots_.size() < wanted) {
    auto dot = objc::Ref<CALayer>::retain(CALayer::layer());
    dot->setBounds({0, 0, kDotSize, kDotSize});
    dot->setCornerRadius(kDotSize / 2);
    self.layer().addSublayer(dot.get());
    dots_.push_back(std::move(dot));
  }
  color_dots();
  self.setNeedsLayout();
}

void PageControl::color_dots() {
  const WithoutActions scope;
  const UIColor dim = tint_ ? tint_.get() : UIColor::colorWithWhite(1, kDimAlpha);
  const UIColor bright = current_tint_ ? current_tint_.get() : UIColor::whiteColor();
  for (std::size_t index = 0; index < dots_.size(); ++index) {
    const bool is_current = index == static_cast<std::size_t>(current_);
    dots_[index]->setBackgroundColor((is_current ? bright : dim).CGColor());
  }
}

CGSize PageControl::size_for_number_of_pages(NSInteger pages) {
  const CGFloat gaps = static_cast<CGFloat>(std::max<NSInteger>(pages - 1, 0));
  return {pages > 0 ? kDotSize + gaps * kDotDistance : 0, kHeight};
}

CGSize PageControl::size_that_fits(CGSize) {
  return self.sizeForNumberOfPages(pages_);
}

void PageControl::layout_subviews() {
  super("layoutSubviews"_sel);
  const WithoutActions scope;
  const CGSize size = self.bounds().size;
  const CGFloat width = self.sizeForNumberOfPages(pages_).width;
  const CGFloat left = on_pixel((size.width - width) / 2);
  const CGFloat top = on_pixel((size.height - kDotSize) / 2);
  for (std::size_t index = 0; index < dots_.size(); ++index) {
    const CGFloat x = left + static_cast<CGFloat>(index) * kDotDistance;
    dots_[index]->setPosition({x + kDotSize / 2, top + kDotSize / 2});
  }
}

void PageControl::end_tracking(UITouch touch, UIEvent event) {
  super("endTrackingWithTouch:withEvent:"_sel, touch, event);
  const CGPoint point = touch.locationInView(self);
  if (!self.pointInside(point, event)) return;
  const NSInteger before = current_;
  const bool forwards = point.x >= self.bounds().size.width / 2;
  self.setCurrentPage(current_ + (forwards ? 1 : -1));
  if (current_ != before) self.sendActionsForControlEvents(UIControlEventValueChanged);
}

void export_page_control() {
  objc::ClassBuilder("UIPageControl", "UIControl")
      .state<PageControl>()
      .method<&PageControl::number_of_pages>("numberOfPages")
      .method<&PageControl::set_number_of_pages>("setNumberOfPages:")
      .method<&PageControl::current_page>("currentPage")
      .method<&PageControl::set_current_page>("setCurrentPage:")
      .method<&PageControl::hides_for_single_page>("hidesForSinglePage")
      .method<&PageControl::set_hides_for_single_page>("setHidesForSinglePage:")
      .method<&PageControl::tint>("pageIndicatorTintColor")
      .method<&PageControl::set_tint>("setPageIndicatorTintColor:")
      .method<&PageControl::current_tint>("currentPageIndicatorTintColor")
      .method<&PageControl::set_current_tint>("setCurrentPageIndicatorTintColor:")
      .method<&PageControl::size_for_number_of_pages>("sizeForNumberOfPages:")
      .method<&PageControl::size_that_fits>("sizeThatFits:")
      .method<&PageControl::layout_subviews>("layoutSubviews")
      .method<&PageControl::end_tracking>("endTrackingWithTouch:withEvent:")
      .finish();
}

}  // namespace host::uikit
