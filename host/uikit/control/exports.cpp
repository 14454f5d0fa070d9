#include "host/uikit/control/exports.h"

#include "host/uikit/control/button.h"
#include "host/uikit/control/control.h"
#include "host/uikit/control/slider.h"
#include "host/uikit/control/switch.h"

namespace host::uikit {

void export_control() {
  if (UIControl::cls()) return;
  export_control_class();
  export_button();
  export_slider();
  export_switch();
}

}  // namespace host::uikit
