#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UITableView.h"
#include "tests/tweak/library/artwork_page.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;

/// The other songs of the playing album, over the artwork.
class AlbumTable : public ArtworkPage {
 protected:
  using Player = MPMusicPlayerController;

  UITableView table() const { return global<UITableView>("tablev"); }
  std::vector<std::string> rows() const {
    table().layoutIfNeeded();
    std::vector<std::string> found;
    for (NSInteger row = 0; row < table().numberOfRowsInSection(0); ++row)
      found.push_back(text(cell(row).textLabel().text()));
    return found;
  }
  /// Taps once and waits, since a second tap would make it the artwork's double tap.
  void tap_on_row(NSInteger row) {
    tap_on(cell(row));
    advance(0.5);
  }
  UITableViewCell cell(NSInteger row) const {
    return table().cellForRowAtIndexPath(NSIndexPath::indexPathForRow(row, 0));
  }
};

TEST_F(AlbumTable, ShowsTheOtherSongsOfThePlayingAlbum) {
  show_table();
  EXPECT_THAT(rows(), ElementsAre("Bravo", "Charlie"));
  play("Bravo");
  EXPECT_THAT(rows(), ElementsAre("Alpha", "Charlie"));
}

TEST_F(AlbumTable, NeverShowsThePlayingSong) {
  for (const char* title : {"Alpha", "Bravo", "Charlie", "Delta", "Echo"}) {
    play(title);
    EXPECT_THAT(rows(), ::testing::Not(::testing::Contains(title)));
  }
}

TEST_F(AlbumTable, ATapPlaysTheSongAndKeepsTheQueue) {
  show_table();
  const MethodSpy<"setQueueWithQuery:", void(Player, objc::Object)> queued(Player::cls());
  const MethodSpy<"togglePlayPause", BOOL(SBMediaController)> toggled(SBMediaController::cls());
  tap_on_row(1);
  EXPECT_EQ(sounding(), "Charlie");
  EXPECT_FALSE(is_engine_paused());
  EXPECT_EQ(queued.count(), 0);
  EXPECT_EQ(toggled.count(), 0);
}

TEST_F(AlbumTable, ATapWhilePausedFirstResumesAndKeepsTheQueue) {
  // A queue with one album, which differs from the library.
  const auto album = MPMediaQuery::alloc().init();
  album.addFilterPredicate(MPMediaPropertyPredicate::predicateWithValue(
      Player::iPodMusicPlayer().nowPlayingItem().valueForProperty(
          MPMediaItemPropertyAlbumPersistentID),
      MPMediaItemPropertyAlbumPersistentID));
  Player::iPodMusicPlayer().setQueueWithQuery(album);
  Player::iPodMusicPlayer().play();
  advance(1.1);
  show_table();
  media().togglePlayPause();
  advance(1.1);
  ASSERT_TRUE(is_engine_paused());
  std::vector<std::string> heard;
  const MethodSpy<"togglePlayPause", BOOL(SBMediaController)> toggled(SBMediaController::cls(),
                                                                      &heard);
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls(), &heard);
  const MethodSpy<"setQueueWithQuery:", void(Player, objc::Object)> queued(Player::cls(), &heard);
  tap_on_row(1);
  EXPECT_THAT(heard, ElementsAre("togglePlayPause", "setNowPlayingItem:"));
  EXPECT_EQ(sounding(), "Charlie");
  EXPECT_FALSE(is_engine_paused());
  // Charlie is the last song of the album; the library would continue with Delta.
  media().changeTrack(1);
  EXPECT_NE(sounding(), "Delta");
  album.release();
}

TEST_F(AlbumTable, ATapIsRefusedWhileATrackChangeIsUnderWay) {
  show_table();
  global<BOOL>("changeTrack") = YES;
  tap_on_row(0);
  EXPECT_EQ(sounding(), "Alpha");
  global<BOOL>("changeTrack") = NO;
  tap_on_row(0);
  EXPECT_EQ(sounding(), "Bravo");
  EXPECT_TRUE(is("changeTrack"));
}

TEST_F(AlbumTable, SlidesOutWhenTheTappedSongHasStarted) {
  show_table();
  tap_on_row(0);
  EXPECT_EQ(global<unsigned>("p"), 1u);
  EXPECT_EQ(frame("blurTable").origin.x, 0);
  const double longest = static_cast<double>(global<float>("time_wait")) + RunLoop::kFrame;
  EXPECT_THAT(seconds_until([this] { return !is("changeTrack"); }),
              ::testing::AllOf(::testing::Gt(0), ::testing::Lt(longest)));
  settle();
  EXPECT_EQ(frame("blurTable").origin.x, frame("blurTable").size.width);
}

TEST_F(AlbumTable, ItsSourceAnswersTheTablesMessages) {
  const auto source = objc::cast<NSObject>(table().dataSource());
  const auto path = NSIndexPath::indexPathForRow(0, 0);
  EXPECT_STREQ(source.className().UTF8String(), "MusicsAlbum");
  EXPECT_EQ(table().delegate(), source);
  EXPECT_EQ(table().numberOfSections(), 1);
  EXPECT_FALSE(objc::send<BOOL>(source, "tableView:canMoveRowAtIndexPath:"_sel, table(), path));
  EXPECT_FALSE(objc::send<BOOL>(source, "tableView:shouldIndentWhileEditingRowAtIndexPath:"_sel,
                                table(), path));
  EXPECT_EQ(objc::send<NSInteger>(source, "tableView:indentationLevelForRowAtIndexPath:"_sel,
                                  table(), path),
            0);
  // Rows have the table's default height.
  EXPECT_FALSE(source.respondsToSelector("tableView:heightForRowAtIndexPath:"_sel));
  EXPECT_EQ(table().rectForRowAtIndexPath(path).size.height, table().rowHeight());
}

}  // namespace
}  // namespace host::test
