#pragma once

#include <optional>
#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIAlertView.h"
#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIWindow.h"

namespace host::uikit {

/// A question in the middle of the screen that must be answered: the screen behind is dimmed and
/// takes no touches. Of several alerts only the newest is visible.
class AlertView : public objc::Implementation<AlertView, UIAlertView> {
 public:
  explicit AlertView(UIAlertView owner) : Implementation(owner) {}
  ~AlertView();

  UIAlertView init_with_title(NSString title, NSString message, objc::Object delegate,
                              NSString cancel);
  NSInteger add_button(NSString title);
  NSString title() const { return title_.get(); }
  void set_title(NSString title) { title_ = objc::Ref<NSString>::adopt(title.copy()); }
  NSString message() const { return message_.get(); }
  void set_message(NSString message) { message_ = objc::Ref<NSString>::adopt(message.copy()); }
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  NSInteger number_of_buttons() const { return static_cast<NSInteger>(titles_.size()); }
  NSString button_title(NSInteger index) const;
  NSInteger cancel_button_index() const { return cancel_index_; }

  BOOL is_visible() const { return window_ ? YES : NO; }
  void show();
  void dismiss(NSInteger index, BOOL animated);
  void pressed(UIControl button);

 private:
  UIAlertViewDelegate listener(objc::Sel selector) const;
  void build();
  CGFloat add_texts();
  CGFloat add_buttons(CGFloat top);
  void add_button_at(NSInteger index, CGRect frame);
  void add_line(CGRect frame);
  void appear();

  objc::Ref<NSString> title_;
  objc::Ref<NSString> message_;
  std::vector<objc::Ref<NSString>> titles_;
  // Not retained, as on the platform.
  objc::Object delegate_;
  NSInteger cancel_index_ = -1;
  objc::Ref<UIWindow> window_;
  objc::Ref<UIView> dim_;
  bool leaving_ = false;
};

void export_alert_view();

}  // namespace host::uikit
