#include "host/uikit/drawing/exports.h"

#include "host/quartzcore/service/exports.h"
#include "host/uikit/drawing/bezier_path.h"
#include "host/uikit/drawing/color.h"
#include "host/uikit/drawing/font.h"
#include "host/uikit/drawing/image.h"

namespace host::uikit {

void export_drawing() {
  quartzcore::export_quartzcore();
  export_color();
  export_font();
  export_image();
  export_bezier_path();
  export_index_path();
}

}  // namespace host::uikit
