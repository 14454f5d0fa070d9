#include "platform/MediaPlayer/MPMediaQuery.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/song_page.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;

class SongList : public SongPage {
 protected:
  using Player = MPMusicPlayerController;
  using Toggle = MethodSpy<"togglePlayPause", BOOL(SBMediaController)>;

  NSObject source() const { return objc::cast<NSObject>(list().dataSource()); }
  void open_while_playing(const char* title) {
    launch();
    play(title);
    open_song_page();
  }
};

TEST_F(SongList, ATapPlaysTheSongWithTheWholeLibraryAsQueue) {
  open_while_playing("Alpha");
  std::vector<std::string> heard;
  const Toggle toggled(SBMediaController::cls(), &heard);
  const MethodSpy<"setQueueWithQuery:", void(Player, objc::Object)> queued(Player::cls(), &heard);
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls(), &heard);
  const MethodSpy<"prepareToPlay", void(Player)> prepared(Player::cls(), &heard);
  const MethodSpy<"play", void(Player)> played(Player::cls(), &heard);
  tap_on_row("Charlie");
  EXPECT_THAT(heard,
              ElementsAre("setQueueWithQuery:", "setNowPlayingItem:", "prepareToPlay", "play"));
  EXPECT_EQ(std::get<0>(queued.last()), global<MPMediaQuery>("fullList"));
  EXPECT_EQ(sounding(), "Charlie");
  media().changeTrack(1);
  EXPECT_EQ(sounding(), "Delta");
}

TEST_F(SongList, ATapOnAHitPlaysItWithTheWholeLibraryAsQueue) {
  open_while_playing("Alpha");
  tap_on_search();
  uikit::type_text("brav"_ns);
  tap_on_row("Bravo");
  EXPECT_EQ(sounding(), "Bravo");
  media().changeTrack(1);
  EXPECT_EQ(sounding(), "Charlie");
}

// The song's index among all songs is not a row of the hits.
TEST_F(SongList, PlayingAHitKeepsTheHitsListed) {
  open_while_playing("Alpha");
  tap_on_search();
  uikit::type_text("elt"_ns);
  tap_on_row("Delta");
  settle();
  EXPECT_EQ(sounding(), "Delta");
  EXPECT_EQ(text(global<UILabel>("title").text()), "Delta");
  EXPECT_TRUE(is("isSearching"));
  EXPECT_THAT(texts(), ElementsAre("Delta"));
}

TEST_F(SongList, ATapResumesAPausedPlayer) {
  open_while_playing("Alpha");
  media().togglePlayPause();
  advance(1.1);
  tap_on_row("Delta");
  EXPECT_EQ(sounding(), "Delta");
  EXPECT_FALSE(is_engine_paused());
}

TEST_F(SongList, ATapIsRefusedWhileATrackChangeIsUnderWay) {
  open_while_playing("Alpha");
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls());
  tap_on_row("Bravo");
  EXPECT_TRUE(is("changeTrack"));
  tap_on_row("Delta");
  EXPECT_EQ(chosen.count(), 1);
  EXPECT_EQ(sounding(), "Bravo");
  advance(global<float>("time_wait"));
  EXPECT_FALSE(is("changeTrack"));
  tap_on_row("Delta");
  EXPECT_EQ(sounding(), "Delta");
}

TEST_F(SongList, ATapLocksTheTransportForOneInterval) {
  open_while_playing("Alpha");
  tap_on_row("Bravo");
  EXPECT_EQ(global<unsigned>("p"), 1u);
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Bravo");
  EXPECT_NEAR(seconds_until([this] { return !is("changeTrack"); }),
              static_cast<double>(global<float>("time_wait")) - 0.05, 1.5 * RunLoop::kFrame);
}

TEST_F(SongList, ATapWhileNothingIsLoadedStartsTheSystemsPlayer) {
  launch();
  open_song_page();
  ASSERT_EQ(global<UILabel>("title").text().length(), 0u);
  const Toggle toggled(SBMediaController::cls());
  const MethodSpy<"setNowPlayingItem:", void(Player, MPMediaItem)> chosen(Player::cls());
  const MethodSpy<"setQueueWithQuery:", void(Player, objc::Object)> queued(Player::cls());
  tap_on_row("Delta");
  EXPECT_EQ(toggled.count(), 1);
  EXPECT_EQ(chosen.count() + queued.count(), 0);
  EXPECT_NE(sounding(), "Delta");
}

TEST_F(SongList, AnEmptyTitleCountsAsNothingLoaded) {
  open_while_playing("Alpha");
  global<UILabel>("title").setText(""_ns);
  const Toggle toggled(SBMediaController::cls());
  tap_on_row("Delta");
  EXPECT_EQ(toggled.count(), 1);
  EXPECT_EQ(sounding(), "Alpha");
  EXPECT_TRUE(is_engine_paused());
}

TEST_F(SongList, ATapHidesTheKeyboard) {
  open_while_playing("Alpha");
  tap_on_search();
  ASSERT_TRUE(field().isFirstResponder());
  tap_on_row("Bravo");
  EXPECT_FALSE(field().isFirstResponder());
}

TEST_F(SongList, RowsAreThirtyFivePointsHighBelowTheHeader) {
  launch();
  for (NSInteger row = 0; row < 5; ++row)
    EXPECT_EQ(list().rectForRowAtIndexPath(NSIndexPath::indexPathForRow(row, 0)),
              (CGRect{0, kHeader + 35 * static_cast<CGFloat>(row), screen().width / 2, 35}));
}

TEST_F(SongList, ItsSourceAnswersTheTablesMessages) {
  launch();
  const auto path = NSIndexPath::indexPathForRow(0, 0);
  EXPECT_STREQ(source().className().UTF8String(), "Musicz");
  EXPECT_EQ(list().delegate(), source());
  EXPECT_EQ(list().numberOfSections(), 1);
  EXPECT_FALSE(objc::send<BOOL>(source(), "tableView:canMoveRowAtIndexPath:"_sel, list(), path));
  EXPECT_FALSE(objc::send<BOOL>(source(), "tableView:shouldIndentWhileEditingRowAtIndexPath:"_sel,
                                list(), path));
  // Misspelled since the first version, so tables never call it.
  EXPECT_EQ(objc::send<NSInteger>(source(), "tableView:indentattionLevelForRowAtIndexPath:"_sel,
                                  list(), path),
            0);
  EXPECT_FALSE(source().respondsToSelector("tableView:indentationLevelForRowAtIndexPath:"_sel));
}

TEST_F(SongList, ANewSourcePlaysARowAsWell) {
  launch();
  play("Alpha");
  const auto fresh = objc::send<NSObject>(
      objc::send<objc::Object>(objc::Object(objc_getClass("Musicz")), "alloc"_sel), "init"_sel);
  objc::send<>(fresh, "tableView:didSelectRowAtIndexPath:"_sel, list(),
               NSIndexPath::indexPathForRow(row_of("Delta"), 0));
  EXPECT_EQ(sounding(), "Delta");
  fresh.release();
}

}  // namespace
}  // namespace host::test
