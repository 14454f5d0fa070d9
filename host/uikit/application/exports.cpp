#include "host/uikit/application/exports.h"

#include "host/uikit/application/application.h"
#include "host/uikit/application/device.h"
#include "host/uikit/application/screen.h"
#include "host/uikit/control/exports.h"
#include "host/uikit/gesture/exports.h"
#include "host/uikit/navigation_items/exports.h"
#include "host/uikit/touch/exports.h"
#include "host/uikit/view/exports.h"

namespace host::uikit {

void export_application() {
  if (UIApplication::cls()) return;
  export_touches();
  export_gesture();
  export_views();
  export_navigation_items();
  export_control();
  export_application_class();
  export_screen();
  export_device();
}

}  // namespace host::uikit
