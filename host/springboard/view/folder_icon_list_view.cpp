#include "host/springboard/common/screen_grid.h"
#include "host/springboard/view/icon_list_view.h"
#include "platform/SpringBoard/SBFolderIconListView.h"

namespace host::springboard {
namespace {

CGPoint folder_origin_for_icon(SBFolderIconListView, NSUInteger index) {
  return FolderMetrics(screen_grid()).origin(index);
}

int folder_location(SBFolderIconListView) {
  return SBIconLocationFolder;
}

}  // namespace

void export_folder_icon_list_view() {
  objc::ClassBuilder("SBFolderIconListView", "SBIconListView")
      .method<&folder_origin_for_icon>("originForIconAtIndex:")
      .method<&folder_location>("iconLocation")
      .finish();
}

}  // namespace host::springboard
