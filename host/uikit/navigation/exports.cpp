#include "host/uikit/navigation/exports.h"

#include "host/uikit/navigation/back_button.h"
#include "host/uikit/navigation/navigation_bar.h"
#include "host/uikit/navigation/navigation_controller.h"

namespace host::uikit {

void export_navigation() {
  if (UINavigationController::cls()) return;
  export_back_button();
  export_navigation_bar();
  export_navigation_controller();
}

}  // namespace host::uikit
