#include "tweak/library/songs.h"

#include "tweak/Sonavue2.h"
#include "tweak/preferences/preferences.h"
#include "tweak/search/search.h"

namespace sonavue {
namespace {

bool is_only_in_cloud(MPMediaItem item) {
  return objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyIsCloudItem)).boolValue();
}

}  // namespace

void make_library() {
  fullList = MPMediaQuery::alloc().init();
  songItems = NSMutableArray::alloc().initWithArray(fullList.items());
  songArtist = NSMutableArray::alloc().init();
}

void list_songs() {
  if (preference_is_on(preference::cloud(), NO)) {
    songItems.release();
    songItems = NSMutableArray::alloc().initWithArray(fullList.items());
  } else {
    songItems.removeAllObjects();
    for (const auto item : fullList.items().of<MPMediaItem>()) {
      if (!is_only_in_cloud(item)) songItems.addObject(item);
    }
  }
  read_titles_again();
  tableView.reloadData();
}

}  // namespace sonavue
