#include "host/uikit/alert/exports.h"

#include "host/uikit/alert/alert_button.h"
#include "host/uikit/alert/alert_view.h"

namespace host::uikit {

void export_alert() {
  if (UIAlertView::cls()) return;
  export_alert_button();
  export_alert_view();
}

}  // namespace host::uikit
