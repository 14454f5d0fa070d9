#include "host/springboard/common/screen_grid.h"
#include "host/springboard/view/icon_list_view.h"
#include "platform/SpringBoard/SBDockIconListView.h"

namespace host::springboard {
namespace {

CGPoint origin_for_icon_at_index(SBDockIconListView self, NSUInteger index) {
  return screen_grid().dock_origin(index, self.icons().count());
}

int location(SBDockIconListView) {
  return SBIconLocationDock;
}

}  // namespace

void export_dock_icon_list_view() {
  objc::ClassBuilder("SBDockIconListView", "SBIconListView")
      .method<&origin_for_icon_at_index>("originForIconAtIndex:")
      .method<&location>("iconLocation")
      .finish();
}

}  // namespace host::springboard
