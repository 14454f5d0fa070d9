#pragma once

#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITextEnumerations.h"

/// Multi-line text that can be edited and scrolled.
struct UITextView : objc::Bound<UITextView, "UITextView", UIScrollView> {
  UITextView initWithFrame(CGRect frame) const { return call<"initWithFrame:", UITextView>(frame); }

  /// Never nil: an empty view returns the empty string.
  NSString text() const { return call<"text", NSString>(); }
  void setText(NSString text) const { call<"setText:">(text); }
  UIFont font() const { return call<"font", UIFont>(); }
  void setFont(UIFont font) const { call<"setFont:">(font); }
  UIColor textColor() const { return call<"textColor", UIColor>(); }
  void setTextColor(UIColor color) const { call<"setTextColor:">(color); }
  NSTextAlignment textAlignment() const { return call<"textAlignment", NSTextAlignment>(); }
  void setTextAlignment(NSTextAlignment alignment) const { call<"setTextAlignment:">(alignment); }
  BOOL isEditable() const { return call<"isEditable", BOOL>(); }
  void setEditable(BOOL editable) const { call<"setEditable:">(editable); }
  /// The space between the edges and the text, in addition to the few points that every line
  /// keeps free.
  UIEdgeInsets textContainerInset() const { return call<"textContainerInset", UIEdgeInsets>(); }
  void setTextContainerInset(UIEdgeInsets inset) const { call<"setTextContainerInset:">(inset); }
  /// Scrolls no further than needed.
  void scrollRangeToVisible(NSRange range) const { call<"scrollRangeToVisible:">(range); }

  // Typing: the messages that a keyboard sends to the first responder.
  BOOL hasText() const { return call<"hasText", BOOL>(); }
  void insertText(NSString text) const { call<"insertText:">(text); }
  void deleteBackward() const { call<"deleteBackward">(); }
  /// Text that an input method is still composing; `selected` is the selection within it.
  void setMarkedText(NSString text, NSRange selected) const {
    call<"setMarkedText:selectedRange:">(text, selected);
  }
  void unmarkText() const { call<"unmarkText">(); }
};

/// The messages to a text view's delegate. All are optional.
struct UITextViewDelegate
    : objc::Bound<UITextViewDelegate, "UITextViewDelegate", UIScrollViewDelegate> {
  BOOL textViewShouldBeginEditing(UITextView view) const {
    return call<"textViewShouldBeginEditing:", BOOL>(view);
  }
  void textViewDidBeginEditing(UITextView view) const { call<"textViewDidBeginEditing:">(view); }
  BOOL textViewShouldEndEditing(UITextView view) const {
    return call<"textViewShouldEndEditing:", BOOL>(view);
  }
  void textViewDidEndEditing(UITextView view) const { call<"textViewDidEndEditing:">(view); }
  BOOL shouldChangeTextInRange(UITextView view, NSRange range, NSString text) const {
    return call<"textView:shouldChangeTextInRange:replacementText:", BOOL>(view, range, text);
  }
  void textViewDidChange(UITextView view) const { call<"textViewDidChange:">(view); }
};
