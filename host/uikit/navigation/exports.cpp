#include "host/uikit/navigation/exports.h"

#include "host/uikit/alert/alert_button.h"
#include "host/uikit/alert/alert_view.h"
#include "host/uikit/navigation/back_button.h"
#include "host/uikit/navigation/navigation_bar.h"
#include "host/uikit/navigation/navigation_controller.h"
#include "host/uikit/pages/page_view_controller.h"
#include "host/uikit/picker/picker_view.h"
#include "host/uikit/picker/picker_wheel.h"

namespace host::uikit {

void export_navigation() {
  if (UINavigationController::cls()) return;
  export_alert_button();
  export_alert_view();
  export_back_button();
  export_navigation_bar();
  export_navigation_controller();
  export_page_view_controller();
  export_picker_wheel();
  export_picker_view();
}

}  // namespace host::uikit
