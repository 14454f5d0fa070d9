#include "host/uikit/view/exports.h"

#include "host/uikit/application/exports.h"
#include "host/uikit/control/exports.h"
#include "host/uikit/gesture/exports.h"
#include "host/uikit/navigation_items/bar_button_item.h"
#include "host/uikit/navigation_items/navigation_item.h"
#include "host/uikit/view/animation_action.h"
#include "host/uikit/view/block_animation.h"
#include "host/uikit/view/image_view.h"
#include "host/uikit/view/responder.h"
#include "host/uikit/view/view.h"
#include "host/uikit/view/view_controller.h"
#include "host/uikit/view/window.h"

namespace host::uikit {

void export_views() {
  if (UIView::cls()) return;
  export_responder();
  export_view();
  export_animation_action();
  export_block_animation();
  export_window();
  export_bar_button_item();
  export_navigation_item();
  export_view_controller();
  export_image_view();
  export_gesture();
  export_control();
  export_application();
}

}  // namespace host::uikit
