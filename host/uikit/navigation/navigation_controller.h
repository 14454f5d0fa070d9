#pragma once

#include <memory>
#include <vector>

#include "host/uikit/navigation/navigation_bar.h"
#include "host/uikit/navigation/page_slide.h"
#include "host/uikit/view/touch_hold.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"

namespace host::uikit {

/// A stack of pages under a bar, of which the top one is visible. A pushed page slides in from the
/// right, and leaves the same way: by the back button, or with a finger that comes in over the left
/// edge.
class NavigationController
    : public objc::Implementation<NavigationController, UINavigationController> {
 public:
  explicit NavigationController(UINavigationController owner) : Implementation(owner) {}
  ~NavigationController();

  UINavigationController init_with_root(UIViewController root);
  void view_did_load();
  void view_will_appear(BOOL animated);
  void view_did_appear(BOOL animated);
  void view_will_disappear(BOOL animated);
  void view_did_disappear(BOOL animated);

  NSArray pages() const;
  void set_pages(NSArray pages, BOOL animated);
  UIViewController top() const { return pages_.empty() ? UIViewController() : pages_.back().get(); }
  UIViewController visible() const;
  void push(UIViewController page, BOOL animated);
  UIViewController pop(BOOL animated);
  NSArray pop_to(UIViewController page, BOOL animated);
  NSArray pop_to_root(BOOL animated);

  UINavigationBar bar();
  BOOL is_bar_hidden() const { return bar_hidden_; }
  void set_bar_hidden(BOOL hidden);
  void set_bar_hidden_animated(BOOL hidden, BOOL animated);
  UIGestureRecognizer pop_gesture();

  // For the bar and the drag.
  void back_pressed();
  void handle_pan(UIPanGestureRecognizer recognizer);
  BOOL should_receive_touch(UIGestureRecognizer recognizer, UITouch touch);
  BOOL should_begin(UIGestureRecognizer recognizer);
  BOOL should_be_required_to_fail(UIGestureRecognizer, UIGestureRecognizer) { return YES; }

 private:
  using Page = objc::Ref<UIViewController>;
  /// A transition between two pages.
  struct Change {
    Page from;
    Page to;
    NavigationBar::Direction direction;
    bool by_finger = false;
    std::unique_ptr<PageSlide> slide;
    /// Already removed from the stack; told so at the end.
    std::vector<Page> leaving;
    /// During the transition neither the pages nor the bar take touches.
    std::unique_ptr<TouchHold> hold = nullptr;
  };

  NavigationBar& bar_state() { return objc::state_of<NavigationBar>(bar()); }
  NSArray items() const;
  void add_page(UIViewController page);
  void install(UIViewController page);
  void fit(UIViewController page) const;
  void show_items();
  void change_to_top(Page from, NavigationBar::Direction direction, std::vector<Page> leaving,
                     BOOL animated);
  void begin_change(Change change);
  void show_change(CGFloat progress);
  void run_change(CGFloat velocity);
  void finish_change();
  void abandon_change(CGFloat velocity);
  void restore();
  static void dismiss_pages(const std::vector<Page>& pages);

  std::vector<Page> pages_;
  objc::Ref<UINavigationBar> bar_;
  objc::Ref<UIView> container_;
  objc::Ref<UIPanGestureRecognizer> pan_;
  std::unique_ptr<Change> change_;
  /// Counts the changes: the end of an animation is ignored when another change has begun since.
  unsigned changes_ = 0;
  BOOL bar_hidden_ = NO;
  bool visible_ = false;
};

void export_navigation_controller();

}  // namespace host::uikit
