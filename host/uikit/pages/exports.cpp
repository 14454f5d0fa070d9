#include "host/uikit/pages/exports.h"

#include "host/uikit/pages/page_view_controller.h"

namespace host::uikit {

void export_pages() {
  if (UIPageViewController::cls()) return;
  export_page_view_controller();
}

}  // namespace host::uikit
