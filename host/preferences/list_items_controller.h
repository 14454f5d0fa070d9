#pragma once

#include "objc/class_builder.h"
#include "platform/Preferences/PSListItemsController.h"

namespace host::preferences {

/// All items of a list, with a check mark at the chosen one. A tap passes the value to the setter
/// of the specifier that opened the page.
class ListItemsController
    : public objc::Implementation<ListItemsController, PSListItemsController> {
 public:
  explicit ListItemsController(PSListItemsController owner) : Implementation(owner) {}

  NSArray specifiers();
  UITableViewCell cell(UITableView table, NSIndexPath path);
  void selected(UITableView table, NSIndexPath path);

 private:
  objc::Object value_at(NSIndexPath path) const;
  void show_mark(UITableViewCell cell, NSIndexPath path) const;
};

void export_list_items_controller();

}  // namespace host::preferences
