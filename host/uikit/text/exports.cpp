#include "host/uikit/text/exports.h"

#include "host/uikit/backdrop/backdrop_view.h"
#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text/effects_window.h"
#include "host/uikit/text/label.h"
#include "host/uikit/text/pasteboard.h"
#include "host/uikit/text/selection_marks.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/text_layout/exports.h"

namespace host::uikit {

void export_text() {
  export_string_drawing();
  export_label();
  export_pasteboard();
  export_effects_window();
  export_selection_marks();
  export_edit_menu();
  export_text_field();
  export_backdrop();
}

}  // namespace host::uikit
