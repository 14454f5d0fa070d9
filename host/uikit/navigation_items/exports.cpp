#include "host/uikit/navigation_items/exports.h"

#include "host/uikit/navigation_items/bar_button_item.h"
#include "host/uikit/navigation_items/navigation_item.h"

namespace host::uikit {

void export_navigation_items() {
  if (UINavigationItem::cls()) return;
  export_bar_button_item();
  export_navigation_item();
}

}  // namespace host::uikit
