#include "tweak/library/song_list.h"

#include "tweak/Sonavue2.h"
#include "tweak/library/song_cell.h"
#include "tweak/library/track_lock.h"
#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"
#include "tweak/look/pieces.h"
#include "tweak/search/search.h"
#include "tweak/search/search_field.h"

namespace sonavue {
namespace {

NSMutableArray rows() {
  return isSearching ? result : songItems;
}

// Nil for a row outside the list, which previous and next request if the library is empty.
MPMediaItem item_of(NSIndexPath path) {
  const NSInteger row = path.row();
  if (row < 0 || row >= static_cast<NSInteger>(rows().count())) return nil;
  return objc::cast<MPMediaItem>(rows().objectAtIndex(static_cast<NSUInteger>(row)));
}

// When the user releases a half-hidden header, it snaps to the nearer end.
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
  return kSongRowHeight;
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
  // Nothing has been loaded yet: the system has to start playing first.
  if (title.text().length() == 0) {
    mc.togglePlayPause();
    return;
  }
  musicPlayer.setQueueWithQuery(fullList);
  musicPlayer.setNowPlayingItem(item);
  musicPlayer.prepareToPlay();
  musicPlayer.play();
}

// How much shorter the list is on small screens, in points. Comparing twice the width with pixel
// counts is intended: 1080 matches no screen with two pixels per point.
float small_screen_correction() {
  const float for_layout = max == 0 ? -15.0f : 0.0f;
  const float twice_the_width = static_cast<float>(2 * screen_width());
  const float for_width = twice_the_width == 750 ? -15.0f : twice_the_width == 1080 ? -25.0f : 0.0f;
  return for_layout + for_width;
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
        // Misspelled, so it is never called. Tables do not indent anyway.
        .method<&indentation>("tableView:indentattionLevelForRowAtIndexPath:")
        .method<&will_select>("tableView:willSelectRowAtIndexPath:")
        .method<&did_select>("tableView:didSelectRowAtIndexPath:");
  });
}

void make_song_list(SpringBoard self) {
  const CGFloat width = screen_width() / 2;
  const CGFloat x = 1.25 * screen_width();
  const CGFloat height = 2 * container.frame().size.height / 3 + 10 + small_screen_correction();
  const auto list = objc::adopt(UITableView::alloc().initWithFrame({x, 0, width, height}));
  tableView = list;
  list->setBackgroundColor(UIColor::clearColor());
  const auto source = Musicz::alloc().init();
  list->setDataSource(source);
  list->setDelegate(source);

  const auto header =
      objc::adopt(UIView::alloc().initWithFrame({0, 0, width, kSearchHeaderHeight}));
  searchCont = header;
  make_search_field(self);
  list->setTableHeaderView(header);
  container.addSubview(list);
  // The header is hidden above the first row until the user pulls the list down.
  list->setContentOffset({0, kSearchHeaderHeight});

  top = add_line_to_pages({x, 0, width, kListLine});
  bottom = add_line_to_pages({x, height - kListLine, width, kListLine});
}

}  // namespace sonavue
