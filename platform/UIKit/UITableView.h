#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITableViewCell.h"

enum UITableViewStyle : NSInteger {
  UITableViewStylePlain = 0,
  UITableViewStyleGrouped = 1,
};

enum UITableViewScrollPosition : NSInteger {
  UITableViewScrollPositionNone = 0,
  UITableViewScrollPositionTop = 1,
  UITableViewScrollPositionMiddle = 2,
  UITableViewScrollPositionBottom = 3,
};

/// A height that lets the table decide.
inline constexpr CGFloat UITableViewAutomaticDimension = -1.0;

struct UITableView : objc::Bound<UITableView, "UITableView", UIScrollView> {
  UITableView initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UITableView>(frame);
  }
  UITableView initWithFrame(CGRect frame, UITableViewStyle style) const {
    return call<"initWithFrame:style:", UITableView>(frame, style);
  }

  UITableViewStyle style() const { return call<"style", UITableViewStyle>(); }
  objc::Object dataSource() const { return call<"dataSource", objc::Object>(); }
  void setDataSource(objc::Object source) const { call<"setDataSource:">(source); }
  void reloadData() const { call<"reloadData">(); }

  CGFloat rowHeight() const { return call<"rowHeight", CGFloat>(); }
  void setRowHeight(CGFloat height) const { call<"setRowHeight:">(height); }
  CGFloat sectionHeaderHeight() const { return call<"sectionHeaderHeight", CGFloat>(); }
  void setSectionHeaderHeight(CGFloat height) const { call<"setSectionHeaderHeight:">(height); }
  CGFloat sectionFooterHeight() const { return call<"sectionFooterHeight", CGFloat>(); }
  void setSectionFooterHeight(CGFloat height) const { call<"setSectionFooterHeight:">(height); }
  UIView tableHeaderView() const { return call<"tableHeaderView", UIView>(); }
  void setTableHeaderView(UIView view) const { call<"setTableHeaderView:">(view); }
  UIView tableFooterView() const { return call<"tableFooterView", UIView>(); }
  void setTableFooterView(UIView view) const { call<"setTableFooterView:">(view); }
  UIView backgroundView() const { return call<"backgroundView", UIView>(); }
  void setBackgroundView(UIView view) const { call<"setBackgroundView:">(view); }

  UITableViewCellSeparatorStyle separatorStyle() const {
    return call<"separatorStyle", UITableViewCellSeparatorStyle>();
  }
  void setSeparatorStyle(UITableViewCellSeparatorStyle style) const {
    call<"setSeparatorStyle:">(style);
  }
  UIColor separatorColor() const { return call<"separatorColor", UIColor>(); }
  void setSeparatorColor(UIColor color) const { call<"setSeparatorColor:">(color); }
  UIEdgeInsets separatorInset() const { return call<"separatorInset", UIEdgeInsets>(); }
  void setSeparatorInset(UIEdgeInsets inset) const { call<"setSeparatorInset:">(inset); }

  NSInteger numberOfSections() const { return call<"numberOfSections", NSInteger>(); }
  NSInteger numberOfRowsInSection(NSInteger section) const {
    return call<"numberOfRowsInSection:", NSInteger>(section);
  }
  CGRect rectForSection(NSInteger section) const {
    return call<"rectForSection:", CGRect>(section);
  }
  CGRect rectForHeaderInSection(NSInteger section) const {
    return call<"rectForHeaderInSection:", CGRect>(section);
  }
  CGRect rectForFooterInSection(NSInteger section) const {
    return call<"rectForFooterInSection:", CGRect>(section);
  }
  CGRect rectForRowAtIndexPath(NSIndexPath path) const {
    return call<"rectForRowAtIndexPath:", CGRect>(path);
  }
  NSIndexPath indexPathForRowAtPoint(CGPoint point) const {
    return call<"indexPathForRowAtPoint:", NSIndexPath>(point);
  }
  NSIndexPath indexPathForCell(UITableViewCell cell) const {
    return call<"indexPathForCell:", NSIndexPath>(cell);
  }
  UITableViewCell cellForRowAtIndexPath(NSIndexPath path) const {
    return call<"cellForRowAtIndexPath:", UITableViewCell>(path);
  }
  NSArray visibleCells() const { return call<"visibleCells", NSArray>(); }
  NSArray indexPathsForVisibleRows() const { return call<"indexPathsForVisibleRows", NSArray>(); }
  UITableViewCell dequeueReusableCellWithIdentifier(NSString identifier) const {
    return call<"dequeueReusableCellWithIdentifier:", UITableViewCell>(identifier);
  }
  UITableViewCell dequeueReusableCellWithIdentifier(NSString identifier, NSIndexPath path) const {
    return call<"dequeueReusableCellWithIdentifier:forIndexPath:", UITableViewCell>(identifier,
                                                                                    path);
  }
  void registerClass(objc::Class cls, NSString identifier) const {
    call<"registerClass:forCellReuseIdentifier:">(cls, identifier);
  }
  void reloadRowsAtIndexPaths(NSArray paths, NSInteger animation) const {
    call<"reloadRowsAtIndexPaths:withRowAnimation:">(paths, animation);
  }

  BOOL allowsSelection() const { return call<"allowsSelection", BOOL>(); }
  void setAllowsSelection(BOOL allows) const { call<"setAllowsSelection:">(allows); }
  NSIndexPath indexPathForSelectedRow() const {
    return call<"indexPathForSelectedRow", NSIndexPath>();
  }
  void selectRowAtIndexPath(NSIndexPath path, BOOL animated,
                            UITableViewScrollPosition position) const {
    call<"selectRowAtIndexPath:animated:scrollPosition:">(path, animated, position);
  }
  void deselectRowAtIndexPath(NSIndexPath path, BOOL animated) const {
    call<"deselectRowAtIndexPath:animated:">(path, animated);
  }
  void scrollToRowAtIndexPath(NSIndexPath path, UITableViewScrollPosition position,
                              BOOL animated) const {
    call<"scrollToRowAtIndexPath:atScrollPosition:animated:">(path, position, animated);
  }
};

/// The source of a table's rows. The row count and the cells are required; the other methods are
/// optional.
struct UITableViewDataSource
    : objc::Bound<UITableViewDataSource, "UITableViewDataSource", NSObject> {
  NSInteger numberOfSectionsInTableView(UITableView table) const {
    return call<"numberOfSectionsInTableView:", NSInteger>(table);
  }
  NSInteger numberOfRowsInSection(UITableView table, NSInteger section) const {
    return call<"tableView:numberOfRowsInSection:", NSInteger>(table, section);
  }
  UITableViewCell cellForRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:cellForRowAtIndexPath:", UITableViewCell>(table, path);
  }
  NSString titleForHeaderInSection(UITableView table, NSInteger section) const {
    return call<"tableView:titleForHeaderInSection:", NSString>(table, section);
  }
  NSString titleForFooterInSection(UITableView table, NSInteger section) const {
    return call<"tableView:titleForFooterInSection:", NSString>(table, section);
  }
};

/// The messages to a table's delegate, besides those of a scroll view. All are optional.
struct UITableViewDelegate
    : objc::Bound<UITableViewDelegate, "UITableViewDelegate", UIScrollViewDelegate> {
  CGFloat heightForRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:heightForRowAtIndexPath:", CGFloat>(table, path);
  }
  CGFloat heightForHeaderInSection(UITableView table, NSInteger section) const {
    return call<"tableView:heightForHeaderInSection:", CGFloat>(table, section);
  }
  CGFloat heightForFooterInSection(UITableView table, NSInteger section) const {
    return call<"tableView:heightForFooterInSection:", CGFloat>(table, section);
  }
  UIView viewForHeaderInSection(UITableView table, NSInteger section) const {
    return call<"tableView:viewForHeaderInSection:", UIView>(table, section);
  }
  UIView viewForFooterInSection(UITableView table, NSInteger section) const {
    return call<"tableView:viewForFooterInSection:", UIView>(table, section);
  }
  void willDisplayCell(UITableView table, UITableViewCell cell, NSIndexPath path) const {
    call<"tableView:willDisplayCell:forRowAtIndexPath:">(table, cell, path);
  }
  void didEndDisplayingCell(UITableView table, UITableViewCell cell, NSIndexPath path) const {
    call<"tableView:didEndDisplayingCell:forRowAtIndexPath:">(table, cell, path);
  }
  BOOL shouldHighlightRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:shouldHighlightRowAtIndexPath:", BOOL>(table, path);
  }
  NSIndexPath willSelectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:willSelectRowAtIndexPath:", NSIndexPath>(table, path);
  }
  void didSelectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    call<"tableView:didSelectRowAtIndexPath:">(table, path);
  }
  NSIndexPath willDeselectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:willDeselectRowAtIndexPath:", NSIndexPath>(table, path);
  }
  void didDeselectRowAtIndexPath(UITableView table, NSIndexPath path) const {
    call<"tableView:didDeselectRowAtIndexPath:">(table, path);
  }
  NSInteger indentationLevelForRowAtIndexPath(UITableView table, NSIndexPath path) const {
    return call<"tableView:indentationLevelForRowAtIndexPath:", NSInteger>(table, path);
  }
};
