#pragma once

#include <memory>

#include "host/uikit/view/touch_hold.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIPageControl.h"
#include "platform/UIKit/UIPageViewController.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// One page that fills the view, with its neighbours beside it. A drag brings in the next page that
/// the data source provides; beyond the ends the page springs back.
class PageViewController : public objc::Implementation<PageViewController, UIPageViewController> {
 public:
  explicit PageViewController(UIPageViewController owner) : Implementation(owner) {}
  ~PageViewController();

  UIPageViewController init();
  UIPageViewController init_with_style(UIPageViewControllerTransitionStyle style,
                                       UIPageViewControllerNavigationOrientation orientation,
                                       NSDictionary options);
  objc::Object data_source() const { return data_source_; }
  void set_data_source(objc::Object source);
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  NSArray pages() const;
  void set_pages(NSArray pages, UIPageViewControllerNavigationDirection direction, BOOL animated,
                 objc::Block<void(BOOL)> completion);

  void view_did_load();
  void view_did_layout_subviews();
  void view_will_appear(BOOL animated);
  void view_did_appear(BOOL animated);
  void view_will_disappear(BOOL animated);
  void view_did_disappear(BOOL animated);

  // The scroll view's delegate messages.
  void will_begin_dragging(UIScrollView view);
  void did_scroll(UIScrollView view);
  void did_end_dragging(UIScrollView view, BOOL decelerates);
  void did_end_decelerating(UIScrollView view);
  void did_end_animation(UIScrollView view);
  void dot_tapped(UIPageControl dots);

 private:
  using Page = objc::Ref<UIViewController>;
  enum Side { kBefore, kAfter };

  UIViewController neighbour(Side side) const;
  CGFloat width() const { return scroll_->bounds().size.width; }
  void add_page(const Page& page);
  void remove_page(Page& page);
  void update_neighbours();
  void arrange();
  void put(const Page& page, NSInteger slot) const;
  void show_neighbour(Side side);
  void settle();
  void report_appearance();
  bool is_seen() const { return static_cast<bool>(seen_); }
  void become(Side side);
  void tell_turned(const Page& previous, bool completed);
  void slide_to(Page page, Side side, objc::Block<void(BOOL)> completion);
  void show_at_once(Page page);
  void finish_slide();
  void update_dots();
  void show_dot(NSInteger dot);

  objc::Object data_source_;
  objc::Object delegate_;
  objc::Ref<UIScrollView> scroll_;
  objc::Ref<UIPageControl> dots_;
  Page current_;
  Page before_;
  Page after_;
  /// The neighbour that has been told that it is about to appear.
  Page coming_;
  objc::OwnedBlock<void(BOOL)> completion_;
  bool sliding_ = false;
  std::unique_ptr<TouchHold> hold_;
  bool arranging_ = false;
  /// The page that has been told that it has appeared.
  Page seen_;
  NSInteger shown_dot_ = 0;
};

void export_page_view_controller();

}  // namespace host::uikit
