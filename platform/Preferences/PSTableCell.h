#pragma once

#include "platform/Preferences/PSSpecifier.h"
#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UITableViewCell.h"

struct PSTableCell : objc::Bound<PSTableCell, "PSTableCell", UITableViewCell> {
  /// From "PSGroupCell", "PSLinkCell", "PSLinkListCell", "PSSwitchCell", "PSButtonCell" and others;
  /// of an unknown name, a group.
  static PSCellType cellTypeFromString(NSString name) {
    return call_class<"cellTypeFromString:", PSCellType>(name);
  }

  PSTableCell initWithStyle(UITableViewCellStyle style, NSString reuse_identifier,
                            PSSpecifier specifier) const {
    return call<"initWithStyle:reuseIdentifier:specifier:", PSTableCell>(style, reuse_identifier,
                                                                         specifier);
  }
  PSSpecifier specifier() const { return call<"specifier", PSSpecifier>(); }
  void setSpecifier(PSSpecifier specifier) const { call<"setSpecifier:">(specifier); }
  /// Shows what the specifier says now.
  void refreshCellContentsWithSpecifier(PSSpecifier specifier) const {
    call<"refreshCellContentsWithSpecifier:">(specifier);
  }
};

/// What the header of a group may answer: a class of views, or of cells, that its property
/// "headerCellClass" names.
struct PSHeaderViewDelegate : objc::Bound<PSHeaderViewDelegate, "PSHeaderViewDelegate", UIView> {
  PSHeaderViewDelegate initWithSpecifier(PSSpecifier specifier) const {
    return call<"initWithSpecifier:", PSHeaderViewDelegate>(specifier);
  }
  CGFloat preferredHeightForWidth(CGFloat width) const {
    return call<"preferredHeightForWidth:", CGFloat>(width);
  }
};
