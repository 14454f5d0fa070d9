#include "host/uikit/scroll/exports.h"

#include "host/uikit/scroll/content_touch_delay.h"
#include "host/uikit/scroll/page_control.h"
#include "host/uikit/scroll/scroll_pan.h"
#include "host/uikit/scroll/scroll_view.h"
#include "host/uikit/scroll/table_view.h"
#include "host/uikit/scroll/table_view_cell.h"

namespace host::uikit {

void export_scroll() {
  if (UIScrollView::cls()) return;
  export_content_touch_delay();
  export_scroll_pan();
  export_scroll_view();
  export_table_view();
  export_table_view_cell();
  export_page_control();
}

}  // namespace host::uikit
