#pragma once

#include "platform/Foundation/NSAttributedString.h"
#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UITextEnumerations.h"
#include "platform/UIKit/UITextInputTraits.h"

enum UITextFieldViewMode : NSInteger {
  UITextFieldViewModeNever = 0,
  UITextFieldViewModeWhileEditing = 1,
  UITextFieldViewModeUnlessEditing = 2,
  UITextFieldViewModeAlways = 3,
};

enum UITextBorderStyle : NSInteger {
  UITextBorderStyleNone = 0,
  UITextBorderStyleLine = 1,
  UITextBorderStyleBezel = 2,
  UITextBorderStyleRoundedRect = 3,
};

struct UITextField : objc::Bound<UITextField, "UITextField", UIControl> {
  UITextField initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UITextField>(frame);
  }

  /// Never nil: an empty field returns the empty string.
  NSString text() const { return call<"text", NSString>(); }
  void setText(NSString text) const { call<"setText:">(text); }
  NSString placeholder() const { return call<"placeholder", NSString>(); }
  void setPlaceholder(NSString text) const { call<"setPlaceholder:">(text); }
  NSAttributedString attributedPlaceholder() const {
    return call<"attributedPlaceholder", NSAttributedString>();
  }
  void setAttributedPlaceholder(NSAttributedString text) const {
    call<"setAttributedPlaceholder:">(text);
  }
  UIFont font() const { return call<"font", UIFont>(); }
  void setFont(UIFont font) const { call<"setFont:">(font); }
  UIColor textColor() const { return call<"textColor", UIColor>(); }
  void setTextColor(UIColor color) const { call<"setTextColor:">(color); }
  NSTextAlignment textAlignment() const { return call<"textAlignment", NSTextAlignment>(); }
  void setTextAlignment(NSTextAlignment alignment) const { call<"setTextAlignment:">(alignment); }
  UITextBorderStyle borderStyle() const { return call<"borderStyle", UITextBorderStyle>(); }
  void setBorderStyle(UITextBorderStyle style) const { call<"setBorderStyle:">(style); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  BOOL isEditing() const { return call<"isEditing", BOOL>(); }
  BOOL clearsOnBeginEditing() const { return call<"clearsOnBeginEditing", BOOL>(); }
  void setClearsOnBeginEditing(BOOL clears) const { call<"setClearsOnBeginEditing:">(clears); }

  UIView leftView() const { return call<"leftView", UIView>(); }
  void setLeftView(UIView view) const { call<"setLeftView:">(view); }
  UITextFieldViewMode leftViewMode() const { return call<"leftViewMode", UITextFieldViewMode>(); }
  void setLeftViewMode(UITextFieldViewMode mode) const { call<"setLeftViewMode:">(mode); }
  UIView rightView() const { return call<"rightView", UIView>(); }
  void setRightView(UIView view) const { call<"setRightView:">(view); }
  UITextFieldViewMode rightViewMode() const { return call<"rightViewMode", UITextFieldViewMode>(); }
  void setRightViewMode(UITextFieldViewMode mode) const { call<"setRightViewMode:">(mode); }
  UITextFieldViewMode clearButtonMode() const {
    return call<"clearButtonMode", UITextFieldViewMode>();
  }
  void setClearButtonMode(UITextFieldViewMode mode) const { call<"setClearButtonMode:">(mode); }

  // The text input traits. The keyboard reads them when it comes up for this field.
  UIKeyboardType keyboardType() const { return call<"keyboardType", UIKeyboardType>(); }
  void setKeyboardType(UIKeyboardType type) const { call<"setKeyboardType:">(type); }
  UIKeyboardAppearance keyboardAppearance() const {
    return call<"keyboardAppearance", UIKeyboardAppearance>();
  }
  void setKeyboardAppearance(UIKeyboardAppearance look) const {
    call<"setKeyboardAppearance:">(look);
  }
  UIReturnKeyType returnKeyType() const { return call<"returnKeyType", UIReturnKeyType>(); }
  void setReturnKeyType(UIReturnKeyType type) const { call<"setReturnKeyType:">(type); }
  UITextAutocapitalizationType autocapitalizationType() const {
    return call<"autocapitalizationType", UITextAutocapitalizationType>();
  }
  void setAutocapitalizationType(UITextAutocapitalizationType type) const {
    call<"setAutocapitalizationType:">(type);
  }

  CGRect textRectForBounds(CGRect bounds) const {
    return call<"textRectForBounds:", CGRect>(bounds);
  }
  CGRect editingRectForBounds(CGRect bounds) const {
    return call<"editingRectForBounds:", CGRect>(bounds);
  }
  CGRect placeholderRectForBounds(CGRect bounds) const {
    return call<"placeholderRectForBounds:", CGRect>(bounds);
  }
  CGRect clearButtonRectForBounds(CGRect bounds) const {
    return call<"clearButtonRectForBounds:", CGRect>(bounds);
  }
  CGRect leftViewRectForBounds(CGRect bounds) const {
    return call<"leftViewRectForBounds:", CGRect>(bounds);
  }
  CGRect rightViewRectForBounds(CGRect bounds) const {
    return call<"rightViewRectForBounds:", CGRect>(bounds);
  }
  void drawTextInRect(CGRect rect) const { call<"drawTextInRect:">(rect); }
  void drawPlaceholderInRect(CGRect rect) const { call<"drawPlaceholderInRect:">(rect); }

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

/// The messages to a text field's delegate. All are optional.
struct UITextFieldDelegate : objc::Bound<UITextFieldDelegate, "UITextFieldDelegate", NSObject> {
  BOOL textFieldShouldBeginEditing(UITextField field) const {
    return call<"textFieldShouldBeginEditing:", BOOL>(field);
  }
  void textFieldDidBeginEditing(UITextField field) const {
    call<"textFieldDidBeginEditing:">(field);
  }
  BOOL textFieldShouldEndEditing(UITextField field) const {
    return call<"textFieldShouldEndEditing:", BOOL>(field);
  }
  void textFieldDidEndEditing(UITextField field) const { call<"textFieldDidEndEditing:">(field); }
  BOOL shouldChangeCharactersInRange(UITextField field, NSRange range, NSString text) const {
    return call<"textField:shouldChangeCharactersInRange:replacementString:", BOOL>(field, range,
                                                                                    text);
  }
  BOOL textFieldShouldClear(UITextField field) const {
    return call<"textFieldShouldClear:", BOOL>(field);
  }
  BOOL textFieldShouldReturn(UITextField field) const {
    return call<"textFieldShouldReturn:", BOOL>(field);
  }
};
