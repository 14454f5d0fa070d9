#pragma once

#include "platform/Preferences/PSSpecifier.h"
#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UITableViewCell.h"

struct PSTableCell : objc::Bound<PSTableCell, "PSTableCell", UITableViewCell> {
  /// Accepts "PSGroupCell", "PSLinkCell", "PSLinkListCell", "PSSwitchCell", "PSButtonCell" and
  /// others. An unknown name gives a group.
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
  /// Updates the cell from the specifier's current state.
  void refreshCellContentsWithSpecifier(PSSpecifier specifier) const {
    call<"refreshCellContentsWithSpecifier:">(specifier);
  }
};

/// The messages that a group's header may answer: a view or cell of the class that the group's
/// property "headerCellClass" names.
struct PSHeaderViewDelegate : objc::Bound<PSHeaderViewDelegate, "PSHeaderViewDelegate", UIView> {
  PSHeaderViewDelegate initWithSpecifier(PSSpecifier specifier) const {
    return call<"initWithSpecifier:", PSHeaderViewDelegate>(specifier);
  }
  CGFloat preferredHeightForWidth(CGFloat width) const {
    return call<"preferredHeightForWidth:", CGFloat>(width);
  }
};
