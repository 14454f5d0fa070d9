#include "host/uikit/touch/exports.h"

#include "host/uikit/touch/event.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {

void export_touches() {
  if (UITouch::cls()) return;
  export_event();
  export_touch();
}

}  // namespace host::uikit
