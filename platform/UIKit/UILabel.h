#pragma once

#include "platform/Foundation/NSAttributedString.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UITextEnumerations.h"
#include "platform/UIKit/UIView.h"

struct UILabel : objc::Bound<UILabel, "UILabel", UIView> {
  UILabel initWithFrame(CGRect frame) const { return call<"initWithFrame:", UILabel>(frame); }

  NSString text() const { return call<"text", NSString>(); }
  void setText(NSString text) const { call<"setText:">(text); }
  NSAttributedString attributedText() const { return call<"attributedText", NSAttributedString>(); }
  void setAttributedText(NSAttributedString text) const { call<"setAttributedText:">(text); }
  UIFont font() const { return call<"font", UIFont>(); }
  void setFont(UIFont font) const { call<"setFont:">(font); }
  UIColor textColor() const { return call<"textColor", UIColor>(); }
  void setTextColor(UIColor color) const { call<"setTextColor:">(color); }
  UIColor highlightedTextColor() const { return call<"highlightedTextColor", UIColor>(); }
  void setHighlightedTextColor(UIColor color) const { call<"setHighlightedTextColor:">(color); }
  BOOL isHighlighted() const { return call<"isHighlighted", BOOL>(); }
  void setHighlighted(BOOL highlighted) const { call<"setHighlighted:">(highlighted); }
  BOOL isEnabled() const { return call<"isEnabled", BOOL>(); }
  void setEnabled(BOOL enabled) const { call<"setEnabled:">(enabled); }
  NSTextAlignment textAlignment() const { return call<"textAlignment", NSTextAlignment>(); }
  void setTextAlignment(NSTextAlignment alignment) const { call<"setTextAlignment:">(alignment); }
  NSLineBreakMode lineBreakMode() const { return call<"lineBreakMode", NSLineBreakMode>(); }
  void setLineBreakMode(NSLineBreakMode mode) const { call<"setLineBreakMode:">(mode); }
  /// 0 means as many as fit.
  NSInteger numberOfLines() const { return call<"numberOfLines", NSInteger>(); }
  void setNumberOfLines(NSInteger lines) const { call<"setNumberOfLines:">(lines); }
  BOOL adjustsFontSizeToFitWidth() const { return call<"adjustsFontSizeToFitWidth", BOOL>(); }
  void setAdjustsFontSizeToFitWidth(BOOL adjusts) const {
    call<"setAdjustsFontSizeToFitWidth:">(adjusts);
  }
  CGFloat minimumScaleFactor() const { return call<"minimumScaleFactor", CGFloat>(); }
  void setMinimumScaleFactor(CGFloat factor) const { call<"setMinimumScaleFactor:">(factor); }

  CGRect textRectForBounds(CGRect bounds, NSInteger lines) const {
    return call<"textRectForBounds:limitedToNumberOfLines:", CGRect>(bounds, lines);
  }
  void drawTextInRect(CGRect rect) const { call<"drawTextInRect:">(rect); }
};
