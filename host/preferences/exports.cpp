#include "host/preferences/exports.h"

#include "host/preferences/control_cells.h"
#include "host/preferences/list_controller.h"
#include "host/preferences/list_items_controller.h"
#include "host/preferences/specifier.h"
#include "host/preferences/table_cell.h"
#include "host/preferences/value_cells.h"

namespace host::preferences {

void export_preferences() {
  if (PSListController::cls()) return;
  export_specifier();
  export_table_cell();
  export_control_cells();
  export_value_cells();
  export_list_controller();
  export_list_items_controller();
}

}  // namespace host::preferences
