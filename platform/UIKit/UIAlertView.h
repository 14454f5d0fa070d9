#pragma once

#include "platform/UIKit/UIView.h"

struct UIAlertView : objc::Bound<UIAlertView, "UIAlertView", UIView> {
  /// The message takes a variadic list of other titles, which a typed call cannot pass. Here the
  /// list is empty; add the titles with `addButtonWithTitle`. The delegate is not retained.
  UIAlertView initWithTitle(NSString title, NSString message, objc::Object delegate,
                            NSString cancel) const {
    return call<"initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:", UIAlertView>(
        title, message, delegate, cancel, NSString());
  }
  /// Returns the button's index.
  NSInteger addButtonWithTitle(NSString title) const {
    return call<"addButtonWithTitle:", NSInteger>(title);
  }

  NSString title() const { return call<"title", NSString>(); }
  void setTitle(NSString title) const { call<"setTitle:">(title); }
  NSString message() const { return call<"message", NSString>(); }
  void setMessage(NSString message) const { call<"setMessage:">(message); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  NSInteger numberOfButtons() const { return call<"numberOfButtons", NSInteger>(); }
  NSString buttonTitleAtIndex(NSInteger index) const {
    return call<"buttonTitleAtIndex:", NSString>(index);
  }
  /// -1 if there is none.
  NSInteger cancelButtonIndex() const { return call<"cancelButtonIndex", NSInteger>(); }

  BOOL isVisible() const { return call<"isVisible", BOOL>(); }
  /// Shows the alert above everything but the keyboard. It stays retained until it is dismissed.
  void show() const { call<"show">(); }
  /// As a tap on the button, but the delegate's `clickedButtonAtIndex` is not called.
  void dismissWithClickedButtonIndex(NSInteger index, BOOL animated) const {
    call<"dismissWithClickedButtonIndex:animated:">(index, animated);
  }
};

/// Every method is optional.
struct UIAlertViewDelegate : objc::Bound<UIAlertViewDelegate, "UIAlertViewDelegate", NSObject> {
  void clickedButtonAtIndex(UIAlertView alert, NSInteger index) const {
    call<"alertView:clickedButtonAtIndex:">(alert, index);
  }
  void didDismissWithButtonIndex(UIAlertView alert, NSInteger index) const {
    call<"alertView:didDismissWithButtonIndex:">(alert, index);
  }
};
