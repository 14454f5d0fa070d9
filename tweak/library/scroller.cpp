#include "tweak/library/scroller.h"

#include "objc/class_builder.h"

namespace sonavue {

void make_scroller() {
  objc::ClassBuilder("Scroller", "UIScrollView").finish();
}

}  // namespace sonavue
