#include "tweak/library/song_list.h"

#include "tweak/Sonavue2.h"
#include "tweak/library/song_cell.h"
#include "tweak/search/search.h"

namespace sonavue {
namespace {

constexpr CGFloat kRowHeight = 35;

NSMutableArray rows() {
  return isSearching ? result : songItems;
}

// Nil for a row outside the list: previous and next may ask for one in an empty library.
MPMediaItem item_of(NSIndexPath path) {
  const NSInteger row = path.row();
  if (row < 0 || row >= static_cast<NSInteger>(rows().count())) return nil;
  return objc::cast<MPMediaItem>(rows().objectAtIndex(static_cast<NSUInteger>(row)));
}

// A header that is let go half hidden goes where it is nearer to.
void snap_header(Musicz, UIScrollView list, BOOL) {
  const CGFloat height = searchCont.frame().size.height;
  const CGFloat y = list.contentOffset().y;
  if (y >= height) return;
  list.setContentOffset({0, y > height * 0.5 ? height : 0}, YES);
}

NSInteger sections(Musicz, UITableView) {
  return 1;
}
NSInteger number_of_rows(Musicz, UITableView, NSInteger) {
  return static_cast<NSInteger>(rows().count());
}
BOOL no_for_row(Musicz, UITableView, NSIndexPath) {
  return NO;
}
CGFloat row_height(Musicz, UITableView, NSIndexPath) {
  return kRowHeight;
}
NSInteger indentation(Musicz, UITableView, NSIndexPath) {
  return 0;
}

UITableViewCell cell_for_row(Musicz, UITableView table, NSIndexPath path) {
  return song_cell(table, item_of(path));
}

NSIndexPath will_select(Musicz, UITableView, NSIndexPath path) {
  return begin_track_change(path);
}

void did_select(Musicz, UITableView, NSIndexPath path) {
  end_search_typing();
  const MPMediaItem item = item_of(path);
  if (!item) return;
  // Nothing has ever been loaded: the system must first start playing by itself.
  if (title.text().length() == 0) {
    mc.togglePlayPause();
    return;
  }
  musicPlayer.setQueueWithQuery(fullList);
  musicPlayer.setNowPlayingItem(item);
  musicPlayer.prepareToPlay();
  musicPlayer.play();
}

}  // namespace

void make_song_list_source() {
  objc::make_own_class<Musicz>([](objc::ClassBuilder& builder) {
    builder.method<&snap_header>("scrollViewDidEndDragging:willDecelerate:")
        .method<&sections>("numberOfSectionsInTableView:")
        .method<&number_of_rows>("tableView:numberOfRowsInSection:")
        .method<&no_for_row>("tableView:canMoveRowAtIndexPath:")
        .method<&no_for_row>("tableView:shouldIndentWhileEditingRowAtIndexPath:")
        .method<&row_height>("tableView:heightForRowAtIndexPath:")
        .method<&cell_for_row>("tableView:cellForRowAtIndexPath:")
        // Misspelt, and so never asked for; tables indent by nothing anyway.
        .method<&indentation>("tableView:indentattionLevelForRowAtIndexPath:")
        .method<&will_select>("tableView:willSelectRowAtIndexPath:")
        .method<&did_select>("tableView:didSelectRowAtIndexPath:");
  });
}

}  // namespace sonavue
