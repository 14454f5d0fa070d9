#include "host/quartzcore/service/exports.h"

#include "host/quartzcore/animations/animation.h"
#include "host/quartzcore/animations/display_link.h"
#include "host/quartzcore/animations/timing_function.h"
#include "host/quartzcore/animations/transaction.h"
#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/drawing/color.h"
#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/drawing/path.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/kinds/gradient_layer.h"
#include "host/quartzcore/kinds/shape_layer.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/service/layer_service.h"

namespace host::quartzcore {

void export_quartzcore() {
  static const bool exported = [] {
    export_color();
    export_image();
    export_path();
    export_value_categories();
    export_timing_function();
    export_animations();
    export_transaction();
    export_display_link();
    export_layer();
    export_layer_flush();
    export_shape_layer();
    export_gradient_layer();
    export_backdrop_layer();
    return true;
  }();
  static_cast<void>(exported);
}

}  // namespace host::quartzcore
