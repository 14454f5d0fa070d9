#include "host/springboard/common/screen_grid.h"
#include "host/springboard/view/icon_list_view.h"
#include "platform/SpringBoard/SBDockIconListView.h"

namespace host::springboard {
namespace {

CGPoint dock_origin_for_icon(SBDockIconListView self, NSUInteger index) {
  return screen_grid().dock_origin(index, self.icons().count());
}

int dock_location(SBDockIconListView) {
  return SBIconLocationDock;
}

}  // namespace

void export_dock_icon_list_view() {
  objc::ClassBuilder("SBDockIconListView", "SBIconListView")
      .method<&dock_origin_for_icon>("originForIconAtIndex:")
      .method<&dock_location>("iconLocation")
      .finish();
}

}  // namespace host::springboard
