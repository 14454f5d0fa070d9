#include "platform/UIKit/UITableView.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr double kTableSlide = 0.2;

class Transport : public PanelTest {
 protected:
  void SetUp() override { open_with("Bravo"); }

  /// The open panel while `title` plays and its row is selected in the list of all songs.
  void open_with(const char* title) {
    launch();
    play(title);
    open_panel();
    ASSERT_EQ(sounding(), title);
    ASSERT_FALSE(is_engine_paused());
  }

  NSInteger selected_row() const {
    return global<UITableView>("tableView").indexPathForSelectedRow().row();
  }
  void wait_for_the_lock() { advance(global<float>("time_wait") + 0.05); }
};

TEST_F(Transport, ATapOnPlayPausesAndResumesTheSong) {
  tap_on(view("play"));
  EXPECT_TRUE(is_engine_paused());
  EXPECT_FALSE(media().isPlaying());
  advance(1);
  tap_on(view("play"));
  EXPECT_FALSE(is_engine_paused());
  EXPECT_TRUE(media().isPlaying());
  EXPECT_EQ(sounding(), "Bravo");
}

TEST_F(Transport, NextPlaysTheSongBelowAndBackTheOneAbove) {
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Charlie");
  EXPECT_FALSE(is_engine_paused());
  wait_for_the_lock();
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Bravo");
  wait_for_the_lock();
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Alpha");
}

TEST_F(Transport, BackNeverRestartsTheSong) {
  advance(20);
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Alpha");
}

TEST_F(Transport, TheQueueIsTheWholeLibraryAgain) {
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Charlie");
  media().changeTrack(1);
  EXPECT_EQ(sounding(), "Delta");
}

TEST_F(Transport, ATrackChangeQueuesTheLibraryBeforeItPlaysTheRow) {
  std::vector<std::string> heard;
  const auto player = MPMusicPlayerController::cls();
  const MethodSpy<"togglePlayPause", BOOL(SBMediaController)> toggled(SBMediaController::cls(),
                                                                      &heard);
  const MethodSpy<"setQueueWithQuery:", void(MPMusicPlayerController, objc::Object)> queued(player,
                                                                                            &heard);
  const MethodSpy<"prepareToPlay", void(MPMusicPlayerController)> prepared(player, &heard);
  const MethodSpy<"play", void(MPMusicPlayerController)> played(player, &heard);
  const MethodSpy<"setNowPlayingItem:", void(MPMusicPlayerController, objc::Object)> chosen(player,
                                                                                            &heard);
  const std::vector<std::string> steps = {
      "setQueueWithQuery:", "prepareToPlay", "play", "setQueueWithQuery:",
      "setNowPlayingItem:", "prepareToPlay", "play"};
  tap_on(view("next"));
  EXPECT_EQ(heard, steps);
  for (const auto& [query] : queued.calls())
    EXPECT_EQ(query, global<MPMediaQuery>("fullList"));
  wait_for_the_lock();

  // A paused player is started first.
  tap_on(view("play"));
  ASSERT_FALSE(media().isPlaying());
  heard.clear();
  tap_on(view("back"));
  ASSERT_FALSE(heard.empty());
  EXPECT_EQ(heard.front(), "togglePlayPause");
  heard.erase(heard.begin());
  EXPECT_EQ(heard, steps);
}

TEST_F(Transport, ATapOnAButtonDoesNotCloseThePanel) {
  for (const char* button : {"play", "back", "next"}) {
    tap_on(view(button));
    wait_for_the_lock();
    settle();
    EXPECT_TRUE(is("isShow")) << button;
  }
}

TEST_F(Transport, APausedPlayerResumesWithTheNextSong) {
  tap_on(view("play"));
  ASSERT_TRUE(is_engine_paused());
  advance(1.1);
  tap_on(view("next"));
  EXPECT_FALSE(is_engine_paused());
  EXPECT_EQ(sounding(), "Charlie");
}

TEST_F(Transport, PlaySlidesTheAlbumTableAside) {
  const UIView table = view("blurTable");
  table.setFrame({0, 0, table.frame().size.width, table.frame().size.height});
  const auto shown = [&] { return table.layer().presentationLayer().frame().origin.x; };
  tap_on(view("play"));
  EXPECT_EQ(table.frame().origin, (CGPoint{table.frame().size.width, 0}));
  EXPECT_LT(shown(), table.frame().size.width / 2);
  EXPECT_NEAR(seconds_until([&] { return is_near(shown(), table.frame().size.width); }),
              kTableSlide, 1.5 * RunLoop::kFrame);
}

TEST_F(Transport, TheEndOfTheLockSlidesTheAlbumTableAside) {
  tap_on(view("next"));
  const UIView table = view("blurTable");
  table.setFrame({0, 0, table.frame().size.width, table.frame().size.height});
  advance(global<float>("time_wait") - 0.1);
  EXPECT_EQ(table.frame().origin.x, 0);
  wait_for_the_lock();
  EXPECT_EQ(table.frame().origin.x, table.frame().size.width);
}

TEST_F(Transport, IsIgnoredWhileTheBannerIsDragged) {
  global<BOOL>("isGrabbing") = YES;
  tap_on(view("play"));
  EXPECT_FALSE(is_engine_paused());
  tap_on(view("next"));
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Bravo");
  EXPECT_FALSE(is("changeTrack"));
  global<BOOL>("isGrabbing") = NO;
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Charlie");
}

class TransportAtTheFirstSong : public Transport {
  void SetUp() override { open_with("Alpha"); }
};

TEST_F(TransportAtTheFirstSong, BackWrapsAroundToTheLast) {
  ASSERT_EQ(selected_row(), 0);
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Echo");
  EXPECT_FALSE(is_engine_paused());
}

class TransportAtTheLastSong : public Transport {
  void SetUp() override { open_with("Echo"); }
};

TEST_F(TransportAtTheLastSong, NextWrapsAroundToTheFirst) {
  // A song without an album selects no row by itself.
  global<UITableView>("tableView")
      .selectRowAtIndexPath(NSIndexPath::indexPathForRow(4, 0), NO, UITableViewScrollPositionNone);
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Alpha");
  EXPECT_FALSE(is_engine_paused());
}

class TransportWithNoRowSelected : public Transport {
  // A song without an album selects no row.
  void SetUp() override { open_with("Echo"); }

 protected:
  NSIndexPath selection() const {
    return global<UITableView>("tableView").indexPathForSelectedRow();
  }
};

TEST_F(TransportWithNoRowSelected, NextPlaysTheSecondSong) {
  ASSERT_FALSE(selection());
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Bravo");
}

TEST_F(TransportWithNoRowSelected, BackPlaysTheLastSong) {
  global<NSMutableArray>("songItems").removeLastObject();
  ASSERT_FALSE(selection());
  tap_on(view("back"));
  EXPECT_EQ(sounding(), "Delta");
}

TEST_F(TransportWithNoRowSelected, NextInAListOfOneSongPlaysIt) {
  const auto songs = global<NSMutableArray>("songItems");
  while (songs.count() > 1)
    songs.removeLastObject();
  ASSERT_FALSE(selection());
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Alpha");
}

class TransportWithoutMusic : public PanelTest {};

TEST_F(TransportWithoutMusic, NothingFails) {
  use_no_songs();
  launch();
  open_panel();
  for (const char* button : {"back", "next", "play"}) {
    tap_on(view(button));
    advance(2.2);
  }
  EXPECT_EQ(sounding(), "");
  EXPECT_FALSE(media().isPlaying());
  EXPECT_FALSE(is("changeTrack"));
  EXPECT_TRUE(is("isShow"));
}

}  // namespace
}  // namespace host::test
