#include "host/uikit/keyboard/exports.h"

#include "host/uikit/keyboard/keyboard.h"

namespace host::uikit {

void export_keyboard() {
  name_keyboard_notifications();
  export_key_view();
  export_popup_view();
  export_keyplane_view();
  watch_first_responder();
}

}  // namespace host::uikit
