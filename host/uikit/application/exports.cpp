#include "host/uikit/application/exports.h"

#include "host/uikit/application/application.h"
#include "host/uikit/application/device.h"
#include "host/uikit/application/screen.h"

namespace host::uikit {

void export_application() {
  if (UIApplication::cls()) return;
  export_application_class();
  export_screen();
  export_device();
}

}  // namespace host::uikit
