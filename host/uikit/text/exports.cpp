#include "host/uikit/text/exports.h"

#include "host/uikit/backdrop/backdrop_view.h"
#include "host/uikit/text/label.h"
#include "host/uikit/text/text_field.h"

namespace host::uikit {

void export_text() {
  export_string_drawing();
  export_label();
  export_text_field();
  export_backdrop();
}

}  // namespace host::uikit
