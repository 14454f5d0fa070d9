#include "host/preferences/list_items_controller.h"

#include "host/preferences/cell_types.h"
#include "host/preferences/specifier.h"

namespace host::preferences {

NSArray ListItemsController::specifiers() {
  if (const NSArray made = self.cached_specifiers()) return made;
  const auto rows = NSMutableArray::arrayWithCapacity(0);
  rows.addObject(PSSpecifier::emptyGroupSpecifier());
  const NSArray values = self.specifier().values();
  const NSDictionary titles = self.specifier().titleDictionary();
  if (values) {
    for (const objc::Object value : values.of()) {
      const auto title = objc::cast<NSString>(titles.objectForKey(value));
      rows.addObject(PSSpecifier::preferenceSpecifierNamed(title, nil, nullptr, nullptr, nullptr,
                                                           kListItemCell, nullptr));
    }
  }
  self.setSpecifiers(rows);
  return rows;
}

objc::Object ListItemsController::value_at(NSIndexPath path) const {
  return self.specifier().values().objectAtIndex(static_cast<NSUInteger>(path.row()));
}

void ListItemsController::show_mark(UITableViewCell cell, NSIndexPath path) const {
  const objc::Object chosen = state_of(self.specifier()).value();
  const bool is_chosen = chosen && objc::cast<NSObject>(value_at(path)).isEqual(chosen);
  cell.setAccessoryType(is_chosen ? UITableViewCellAccessoryCheckmark
                                  : UITableViewCellAccessoryNone);
}

UITableViewCell ListItemsController::cell(UITableView table, NSIndexPath path) {
  const auto cell = super<UITableViewCell>("tableView:cellForRowAtIndexPath:"_sel, table, path);
  show_mark(cell, path);
  return cell;
}

void ListItemsController::selected(UITableView table, NSIndexPath path) {
  table.deselectRowAtIndexPath(path, YES);
  state_of(self.specifier()).set_value(value_at(path));
  // Shows what is stored now, whatever the setter did with the value.
  const auto shown = objc::Ref<NSArray>::retain(table.visibleCells());
  for (const UITableViewCell cell : shown->of<UITableViewCell>())
    show_mark(cell, table.indexPathForCell(cell));
}

void export_list_items_controller() {
  objc::ClassBuilder("PSListItemsController", "PSListController")
      .state<ListItemsController>()
      .method<&ListItemsController::specifiers>("specifiers")
      .method<&ListItemsController::cell>("tableView:cellForRowAtIndexPath:")
      .method<&ListItemsController::selected>("tableView:didSelectRowAtIndexPath:")
      .finish();
}

}  // namespace host::preferences
