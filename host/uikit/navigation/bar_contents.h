#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UINavigationBar.h"

namespace host::uikit {

/// What a navigation bar shows for one item: its title, a back or left button, and a right button.
/// During a transition the contents of both items are shown, each at its own position.
class BarContents {
 public:
  struct Way {
    /// The title of the previous page; nil when there is none.
    NSString back_title;
    objc::Object target;
    objc::Sel back_action;
  };

  BarContents(UIView bar, UINavigationItem item, const Way& way);
  ~BarContents();
  BarContents(const BarContents&) = delete;
  BarContents& operator=(const BarContents&) = delete;

  UINavigationItem item() const { return item_.get(); }
  /// 0 is in place, 1 is where the next page's contents come from, -1 where the previous page's go.
  void place(CGFloat position) const;

 private:
  void add_back(const Way& way);
  void add_title();
  UIButton add_button(UIBarButtonItem item, bool at_left);

  objc::Ref<UINavigationItem> item_;
  objc::Ref<UIView> view_;
  objc::Ref<UIView> title_;
  objc::Ref<UIControl> back_;
  objc::Ref<UIButton> left_;
  objc::Ref<UIButton> right_;
};

}  // namespace host::uikit
