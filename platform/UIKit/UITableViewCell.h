#pragma once

#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIView.h"

enum UITableViewCellStyle : NSInteger {
  UITableViewCellStyleDefault = 0,
  UITableViewCellStyleValue1 = 1,
  UITableViewCellStyleValue2 = 2,
  UITableViewCellStyleSubtitle = 3,
};

enum UITableViewCellSeparatorStyle : NSInteger {
  UITableViewCellSeparatorStyleNone = 0,
  UITableViewCellSeparatorStyleSingleLine = 1,
};

enum UITableViewCellSelectionStyle : NSInteger {
  UITableViewCellSelectionStyleNone = 0,
  UITableViewCellSelectionStyleBlue = 1,
  UITableViewCellSelectionStyleGray = 2,
  UITableViewCellSelectionStyleDefault = 3,
};

enum UITableViewCellAccessoryType : NSInteger {
  UITableViewCellAccessoryNone = 0,
  UITableViewCellAccessoryDisclosureIndicator = 1,
  UITableViewCellAccessoryDetailDisclosureButton = 2,
  UITableViewCellAccessoryCheckmark = 3,
};

struct UITableViewCell : objc::Bound<UITableViewCell, "UITableViewCell", UIView> {
  UITableViewCell initWithStyle(UITableViewCellStyle style, NSString reuse_identifier) const {
    return call<"initWithStyle:reuseIdentifier:", UITableViewCell>(style, reuse_identifier);
  }
  UITableViewCell initWithFrame(CGRect frame, NSString reuse_identifier) const {
    return call<"initWithFrame:reuseIdentifier:", UITableViewCell>(frame, reuse_identifier);
  }

  NSString reuseIdentifier() const { return call<"reuseIdentifier", NSString>(); }
  void prepareForReuse() const { call<"prepareForReuse">(); }
  UIView contentView() const { return call<"contentView", UIView>(); }
  UILabel textLabel() const { return call<"textLabel", UILabel>(); }
  UILabel detailTextLabel() const { return call<"detailTextLabel", UILabel>(); }
  UIImageView imageView() const { return call<"imageView", UIImageView>(); }

  UIView backgroundView() const { return call<"backgroundView", UIView>(); }
  void setBackgroundView(UIView view) const { call<"setBackgroundView:">(view); }
  UIView selectedBackgroundView() const { return call<"selectedBackgroundView", UIView>(); }
  void setSelectedBackgroundView(UIView view) const { call<"setSelectedBackgroundView:">(view); }

  UITableViewCellSelectionStyle selectionStyle() const {
    return call<"selectionStyle", UITableViewCellSelectionStyle>();
  }
  void setSelectionStyle(UITableViewCellSelectionStyle style) const {
    call<"setSelectionStyle:">(style);
  }
  BOOL isSelected() const { return call<"isSelected", BOOL>(); }
  void setSelected(BOOL selected) const { call<"setSelected:">(selected); }
  void setSelected(BOOL selected, BOOL animated) const {
    call<"setSelected:animated:">(selected, animated);
  }
  BOOL isHighlighted() const { return call<"isHighlighted", BOOL>(); }
  void setHighlighted(BOOL highlighted) const { call<"setHighlighted:">(highlighted); }
  void setHighlighted(BOOL highlighted, BOOL animated) const {
    call<"setHighlighted:animated:">(highlighted, animated);
  }

  UITableViewCellAccessoryType accessoryType() const {
    return call<"accessoryType", UITableViewCellAccessoryType>();
  }
  void setAccessoryType(UITableViewCellAccessoryType type) const {
    call<"setAccessoryType:">(type);
  }
  UIView accessoryView() const { return call<"accessoryView", UIView>(); }
  void setAccessoryView(UIView view) const { call<"setAccessoryView:">(view); }
  NSInteger indentationLevel() const { return call<"indentationLevel", NSInteger>(); }
  void setIndentationLevel(NSInteger level) const { call<"setIndentationLevel:">(level); }
  CGFloat indentationWidth() const { return call<"indentationWidth", CGFloat>(); }
  void setIndentationWidth(CGFloat width) const { call<"setIndentationWidth:">(width); }
  UIEdgeInsets separatorInset() const { return call<"separatorInset", UIEdgeInsets>(); }
  void setSeparatorInset(UIEdgeInsets inset) const { call<"setSeparatorInset:">(inset); }
};
