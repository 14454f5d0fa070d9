#include "host/uikit/control/exports.h"

#include "host/uikit/control/button.h"
#include "host/uikit/control/control.h"

namespace host::uikit {

void export_control() {
  if (UIControl::cls()) return;
  export_control_class();
  export_button();
}

}  // namespace host::uikit
