#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UITableView.h"

/// A settings page: a table of what its specifiers say.
struct PSListController : objc::Bound<PSListController, "PSListController", UIViewController> {
  /// Subclasses make them here when `cached_specifiers` is nil.
  NSArray specifiers() const { return call<"specifiers", NSArray>(); }
  void setSpecifiers(NSArray specifiers) const { call<"setSpecifiers:">(specifiers); }
  /// Has the specifiers made anew.
  void reloadSpecifiers() const { call<"reloadSpecifiers">(); }
  /// Shows the same specifiers, with the values as they are now.
  void reload() const { call<"reload">(); }
  void reloadSpecifier(PSSpecifier specifier) const { call<"reloadSpecifier:">(specifier); }
  PSSpecifier specifierForID(NSString identifier) const {
    return call<"specifierForID:", PSSpecifier>(identifier);
  }
  UITableView table() const { return call<"table", UITableView>(); }

  /// The one that it was opened by.
  PSSpecifier specifier() const { return call<"specifier", PSSpecifier>(); }
  void setSpecifier(PSSpecifier specifier) const { call<"setSpecifier:">(specifier); }
  UIViewController parentController() const { return call<"parentController", UIViewController>(); }
  void setParentController(UIViewController parent) const { call<"setParentController:">(parent); }
  void pushController(UIViewController controller) const { call<"pushController:">(controller); }

  /// What was set last, kept in the field `_specifiers`; nil before that.
  NSArray cached_specifiers() const {
    const auto* field = objc::field<objc::Id>(*this, "_specifiers");
    return field ? objc::wrap<NSArray>(*field) : NSArray();
  }
};
