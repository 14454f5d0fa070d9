#include "host/springboard/common/screen_grid.h"
#include "host/springboard/view/icon_list_view.h"
#include "platform/SpringBoard/SBFolderIconListView.h"

namespace host::springboard {
namespace {

CGPoint origin_for_icon_at_index(SBFolderIconListView, NSUInteger index) {
  return FolderMetrics(screen_grid()).origin(index);
}

int location(SBFolderIconListView) {
  return SBIconLocationFolder;
}

}  // namespace

void export_folder_icon_list_view() {
  objc::ClassBuilder("SBFolderIconListView", "SBIconListView")
      .method<&origin_for_icon_at_index>("originForIconAtIndex:")
      .method<&location>("iconLocation")
      .finish();
}

}  // namespace host::springboard
