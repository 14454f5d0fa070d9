#include "host/uikit/view/exports.h"

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
  export_view_controller();
  export_image_view();
}

}  // namespace host::uikit
