#include "tweak/library/album_table.h"

#include "objc/ref.h"
#include "tweak/Sonavue2.h"
#include "tweak/library/song_cell.h"
#include "tweak/library/track_lock.h"

namespace sonavue {
namespace {

MPMediaItem album_song_of(NSIndexPath path) {
  return objc::cast<MPMediaItem>(songArtist.objectAtIndex(static_cast<NSUInteger>(path.row())));
}

NSInteger album_sections(MusicsAlbum, UITableView) {
  return 1;
}
NSInteger album_row_count(MusicsAlbum, UITableView, NSInteger) {
  return static_cast<NSInteger>(songArtist.count());
}
BOOL no_for_album_row(MusicsAlbum, UITableView, NSIndexPath) {
  return NO;
}
NSInteger album_indentation(MusicsAlbum, UITableView, NSIndexPath) {
  return 0;
}

UITableViewCell album_cell_for_row(MusicsAlbum, UITableView table, NSIndexPath path) {
  return song_cell(table, album_song_of(path));
}

NSIndexPath will_select_album_song(MusicsAlbum, UITableView, NSIndexPath path) {
  return begin_track_change(path);
}

// The queue stays: it already contains the songs of the album.
void did_select_album_song(MusicsAlbum, UITableView, NSIndexPath path) {
  if (!mc.isPlaying()) mc.togglePlayPause();
  musicPlayer.setNowPlayingItem(album_song_of(path));
}

}  // namespace

void make_album_table_source() {
  objc::make_own_class<MusicsAlbum>([](objc::ClassBuilder& builder) {
    builder.method<&album_sections>("numberOfSectionsInTableView:")
        .method<&album_row_count>("tableView:numberOfRowsInSection:")
        .method<&no_for_album_row>("tableView:canMoveRowAtIndexPath:")
        .method<&no_for_album_row>("tableView:shouldIndentWhileEditingRowAtIndexPath:")
        .method<&album_cell_for_row>("tableView:cellForRowAtIndexPath:")
        .method<&album_indentation>("tableView:indentationLevelForRowAtIndexPath:")
        .method<&will_select_album_song>("tableView:willSelectRowAtIndexPath:")
        .method<&did_select_album_song>("tableView:didSelectRowAtIndexPath:");
  });
}

void make_album_table() {
  const auto table = objc::adopt(UITableView::alloc().initWithFrame(blurTable.bounds()));
  tablev = table;
  table->setBackgroundColor(UIColor::clearColor());
  const auto source = MusicsAlbum::alloc().init();
  table->setDataSource(source);
  table->setDelegate(source);
  table->setSeparatorColor(UIColor::whiteColor());
  blurTable.addSubview(table);
}

}  // namespace sonavue
