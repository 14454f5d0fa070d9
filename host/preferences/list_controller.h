#pragma once

#include <map>

#include "host/preferences/specifier_groups.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSBundle.h"
#include "platform/Preferences/PSListController.h"

namespace host::preferences {

/// A page of settings: the specifiers that its subclass creates, as the rows of a grouped table.
class ListController : public objc::Implementation<ListController, PSListController> {
 public:
  explicit ListController(PSListController owner) : Implementation(owner) {}
  ~ListController();

  NSArray specifiers();
  void set_specifiers(NSArray specifiers);
  void reload_specifiers();
  void reload();
  void reload_specifier(PSSpecifier specifier);
  void reload_specifier_animated(PSSpecifier specifier, BOOL animated);
  void reload_specifier_id(NSString identifier);
  void reload_specifier_id_animated(NSString identifier, BOOL animated);
  PSSpecifier specifier_for_id(NSString identifier);

  // Rows that come and go; the specifiers that the page has change with them.
  void insert_at(PSSpecifier specifier, NSInteger index, BOOL animated);
  void insert_after(PSSpecifier specifier, PSSpecifier before, BOOL animated);
  void insert_after_id(PSSpecifier specifier, NSString identifier, BOOL animated);
  void insert_all_after(NSArray specifiers, PSSpecifier before, BOOL animated);
  void insert_all_after_id(NSArray specifiers, NSString identifier, BOOL animated);
  void add(PSSpecifier specifier, BOOL animated);
  void remove(PSSpecifier specifier, BOOL animated);
  void remove_id(NSString identifier, BOOL animated);
  void remove_all(NSArray specifiers, BOOL animated);
  BOOL contains(PSSpecifier specifier);

  // Values in the files of preferences.
  NSBundle bundle();
  NSArray load_list(NSString name, objc::Object target);
  objc::Object read_value(PSSpecifier specifier);
  void write_value(objc::Object value, PSSpecifier specifier);
  UITableView table();

  PSSpecifier specifier() const { return specifier_.get(); }
  void set_specifier(PSSpecifier specifier);
  UIViewController parent_controller() const { return parent_; }
  void set_parent_controller(UIViewController parent) { parent_ = parent; }
  void push_controller(UIViewController controller);

  void view_did_load();
  void view_will_appear(BOOL animated);

  // The table's data source and delegate messages.
  NSInteger sections(UITableView table);
  NSInteger rows(UITableView table, NSInteger section);
  UITableViewCell cell(UITableView table, NSIndexPath path);
  NSString header_title(UITableView table, NSInteger section);
  NSString footer_title(UITableView table, NSInteger section);
  CGFloat header_height(UITableView table, NSInteger section);
  UIView header_view(UITableView table, NSInteger section);
  BOOL should_highlight(UITableView table, NSIndexPath path);
  void selected(UITableView table, NSIndexPath path);
  CGFloat row_height(UITableView table, NSIndexPath path);

 private:
  PSSpecifier specifier_at(NSIndexPath path) const;
  PSSpecifier group_at(NSInteger section) const;
  PSHeaderViewDelegate own_header(NSInteger section);
  void keep(NSArray specifiers);
  void show_rows();
  void show_values();
  void change_rows(NSArray specifiers, BOOL animated);
  bool open_detail(PSSpecifier specifier);

  SpecifierGroups groups_;
  std::map<NSInteger, objc::Ref<PSHeaderViewDelegate>> headers_;
  objc::Ref<UITableView> table_;
  objc::Ref<PSSpecifier> specifier_;
  // Not retained: the parent retains this controller.
  UIViewController parent_;
};

void export_list_controller();

}  // namespace host::preferences
