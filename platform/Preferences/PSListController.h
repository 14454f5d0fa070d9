#pragma once

#include "platform/Preferences/PSTableCell.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UITableView.h"

/// A settings page: a table with the rows that its specifiers describe.
struct PSListController : objc::Bound<PSListController, "PSListController", UIViewController> {
  /// Overridden by subclasses, which make the specifiers when `cached_specifiers` is nil.
  NSArray specifiers() const { return call<"specifiers", NSArray>(); }
  void setSpecifiers(NSArray specifiers) const { call<"setSpecifiers:">(specifiers); }
  /// Discards the specifiers and requests them again.
  void reloadSpecifiers() const { call<"reloadSpecifiers">(); }
  /// Shows the same specifiers with their current values.
  void reload() const { call<"reload">(); }
  void reloadSpecifier(PSSpecifier specifier) const { call<"reloadSpecifier:">(specifier); }
  PSSpecifier specifierForID(NSString identifier) const {
    return call<"specifierForID:", PSSpecifier>(identifier);
  }
  UITableView table() const { return call<"table", UITableView>(); }

  /// The specifier of the row that opened this page.
  PSSpecifier specifier() const { return call<"specifier", PSSpecifier>(); }
  void setSpecifier(PSSpecifier specifier) const { call<"setSpecifier:">(specifier); }
  UIViewController parentController() const { return call<"parentController", UIViewController>(); }
  void setParentController(UIViewController parent) const { call<"setParentController:">(parent); }
  void pushController(UIViewController controller) const { call<"pushController:">(controller); }

  /// The specifiers that were set last, from the field `_specifiers`; nil before that.
  NSArray cached_specifiers() const {
    const auto* field = objc::field<objc::Id>(*this, "_specifiers");
    return field ? objc::wrap<NSArray>(*field) : NSArray();
  }
};
