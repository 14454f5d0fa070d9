#include "host/quartzcore/exports.h"

#include "host/quartzcore/color.h"
#include "host/quartzcore/image.h"
#include "host/quartzcore/path.h"

namespace host::quartzcore {

void export_quartzcore() {
  static const bool exported = [] {
    export_color();
    export_image();
    export_path();
    return true;
  }();
  static_cast<void>(exported);
}

}  // namespace host::quartzcore
