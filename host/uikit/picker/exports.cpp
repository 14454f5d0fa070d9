#include "host/uikit/picker/exports.h"

#include "host/uikit/picker/picker_view.h"
#include "host/uikit/picker/picker_wheel.h"

namespace host::uikit {

void export_picker() {
  if (UIPickerView::cls()) return;
  export_picker_wheel();
  export_picker_view();
}

}  // namespace host::uikit
