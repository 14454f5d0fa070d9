#pragma once

#include <functional>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UINavigationBar.h"

namespace host::uikit {

class NavigationItem : public objc::Implementation<NavigationItem, UINavigationItem> {
 public:
  explicit NavigationItem(UINavigationItem owner) : Implementation(owner) {}
  ~NavigationItem();

  UINavigationItem init_with_title(NSString title);
  NSString title() const { return title_.get(); }
  void set_title(NSString title);
  UIView title_view() const { return title_view_.get(); }
  void set_title_view(UIView view);
  UIBarButtonItem left() const { return left_.get(); }
  void set_left(UIBarButtonItem item);
  UIBarButtonItem right() const { return right_.get(); }
  void set_right(UIBarButtonItem item);
  void set_right_animated(UIBarButtonItem item, BOOL) { set_right(item); }
  BOOL hides_back_button() const { return hides_back_button_; }
  void set_hides_back_button(BOOL hides);

  /// Sets the function called after every change of what is shown, including the items' buttons. It
  /// replaces the previous one.
  void watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }

 private:
  void changed() const;
  void swap(objc::Ref<UIBarButtonItem>& kept, UIBarButtonItem item);

  objc::Ref<NSString> title_;
  objc::Ref<UIView> title_view_;
  objc::Ref<UIBarButtonItem> left_;
  objc::Ref<UIBarButtonItem> right_;
  BOOL hides_back_button_ = NO;
  std::function<void()> watcher_;
};

void export_navigation_item();

}  // namespace host::uikit
