#pragma once

#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/UIPageControl.h"

namespace host::uikit {

/// A row of dots, one per page. A tap beside the current dot turns a page in that direction.
class PageControl : public objc::Implementation<PageControl, UIPageControl> {
 public:
  explicit PageControl(UIPageControl owner) : Implementation(owner) {}
  ~PageControl();

  NSInteger number_of_pages() const { return pages_; }
  void set_number_of_pages(NSInteger pages);
  NSInteger current_page() const { return current_; }
  void set_current_page(NSInteger page);
  BOOL hides_for_single_page() const { return hides_for_single_page_; }
  void set_hides_for_single_page(BOOL hides);
  UIColor tint() const { return tint_.get(); }
  void set_tint(UIColor color);
  UIColor current_tint() const { return current_tint_.get(); }
  void set_current_tint(UIColor color);
  CGSize size_for_number_of_pages(NSInteger pages);
  CGSize size_that_fits(CGSize size);
  void layout_subviews();
  void end_tracking(UITouch touch, UIEvent event);

 private:
  void match_dots();
  void color_dots();

  std::vector<objc::Ref<CALayer>> dots_;
  objc::Ref<UIColor> tint_;
  objc::Ref<UIColor> current_tint_;
  NSInteger pages_ = 0;
  NSInteger current_ = 0;
  BOOL hides_for_single_page_ = NO;
};

void export_page_control();

}  // namespace host::uikit
