#include <algorithm>

#include "platform/MediaPlayerUI/MPUNowPlayingController.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITableView.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr const char* kMarkedFile = "<key>checked</key><true/>";
constexpr const char* kPlayPicture = "/Library/Application Support/Sonavue/Play.png";
constexpr const char* kPausePicture = "/Library/Application Support/Sonavue/Pausa.png";

class NowPlaying : public PanelTest {
 protected:
  UIImage cover() const { return global<UIImageView>("cover").image(); }
  UIImage artwork() const { return global<UIImageView>("art").image(); }
  UIImage play_picture() const {
    return global<UIButton>("play").imageForState(UIControlStateNormal);
  }
  std::string label(const char* name) const { return text(global<UILabel>(name).text()); }
  NSInteger selected_row() const {
    const NSIndexPath path = global<UITableView>("tableView").indexPathForSelectedRow();
    return path ? path.row() : -1;
  }
  void refresh() { objc::send<>(application, "infoMusic"_sel); }

  /// Which of the button's pictures was last loaded while `act` ran; empty if none was.
  std::string picture_loaded_by(const std::function<void()>& act) {
    MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)> loaded(
        objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls())));
    act();
    std::string last;
    for (const auto& [path] : loaded.calls()) {
      const std::string file = text(path);
      if (file == kPlayPicture || file == kPausePicture) last = file;
    }
    return last;
  }
  std::string picture_for(int state) {
    global<int>("playbackState") = state;
    return picture_loaded_by([this] { refresh(); });
  }
};

TEST_F(NowPlaying, TheFirstRefreshAlwaysDrawsTheButton) {
  load_extension();
  ASSERT_EQ(global<int>("lastState"), 99);
  PhoneTest::launch();
  EXPECT_EQ(global<int>("lastState"), 0);
  EXPECT_EQ(play_picture().renderingMode(), UIImageRenderingModeAlwaysTemplate);
}

TEST_F(NowPlaying, EachStateHasItsPicture) {
  launch();
  EXPECT_EQ(picture_for(1), kPausePicture);
  EXPECT_EQ(play_picture().renderingMode(), UIImageRenderingModeAlwaysTemplate);
  EXPECT_EQ(picture_for(2), kPlayPicture);
  EXPECT_EQ(picture_for(1), kPausePicture);
  EXPECT_EQ(picture_for(3), kPlayPicture);
  EXPECT_EQ(picture_for(1), kPausePicture);
  EXPECT_EQ(picture_for(0), kPlayPicture);
}

TEST_F(NowPlaying, AnUnchangedStateIsNotDrawnAgain) {
  launch();
  EXPECT_EQ(picture_for(1), kPausePicture);
  EXPECT_EQ(picture_for(1), "");
}

TEST_F(NowPlaying, SeekingLeavesThePictureAndTheNextStateDrawsAgain) {
  launch();
  ASSERT_EQ(picture_for(1), kPausePicture);
  const UIImage before = play_picture();
  for (const int seeking : {4, 5}) {
    EXPECT_EQ(picture_for(seeking), "");
    EXPECT_EQ(play_picture(), before);
    EXPECT_EQ(global<int>("lastState"), 1);
  }
  EXPECT_EQ(picture_for(2), kPlayPicture);
}

TEST_F(NowPlaying, ThePlayersOwnStateReachesTheButton) {
  launch();
  EXPECT_EQ(picture_loaded_by([this] { play("Bravo"); }), kPausePicture);
  EXPECT_EQ(global<int>("playbackState"), 1);
  const auto pause = [this] {
    media().togglePlayPause();
    advance(1.1);
  };
  EXPECT_EQ(picture_loaded_by(pause), kPlayPicture);
  EXPECT_EQ(global<int>("playbackState"), 2);
}

TEST_F(NowPlaying, TitleAndArtistAreTheSongs) {
  launch();
  play("Delta");
  EXPECT_EQ(label("title"), "Delta");
  EXPECT_EQ(label("artist"), "Yves");
  play("Alpha");
  EXPECT_EQ(label("title"), "Alpha");
  EXPECT_EQ(label("artist"), "Xenia");
}

TEST_F(NowPlaying, TheArtworkIsShownIfTheSongHasOne) {
  launch();
  play("Alpha");
  ASSERT_TRUE(artwork());
  EXPECT_GT(artwork().size().width, 0);
  play("Delta");
  EXPECT_FALSE(artwork());
}

TEST_F(NowPlaying, TheBackdropShowsTheArtworkWhenItsSettingIsOn) {
  write_preferences(std::string("<key>cover</key><true/>") + kMarkedFile);
  launch();
  play("Alpha");
  EXPECT_TRUE(cover());
  EXPECT_EQ(cover(), artwork());
}

TEST_F(NowPlaying, TheBackdropIsEmptyWhenItsSettingIsOff) {
  write_preferences(std::string("<key>cover</key><false/>") + kMarkedFile);
  launch();
  play("Alpha");
  EXPECT_TRUE(artwork());
  EXPECT_FALSE(cover());
}

TEST_F(NowPlaying, ABackdropSwitchedOffIsClearedWhenPlayingStops) {
  write_preferences(std::string("<key>cover</key><true/>") + kMarkedFile);
  launch();
  play("Alpha");
  media().togglePlayPause();
  advance(2);
  EXPECT_TRUE(cover());
  write_preferences(std::string("<key>cover</key><false/>") + kMarkedFile);
  advance(1.1);
  EXPECT_FALSE(cover());
  EXPECT_TRUE(artwork());
}

TEST_F(NowPlaying, ThePlayingSongIsSelectedAndMissingFromItsAlbum) {
  launch();
  play("Bravo");
  const auto songs = titles("songItems");
  EXPECT_EQ(songs.at(static_cast<std::size_t>(selected_row())), "Bravo");
  EXPECT_THAT(titles("songArtist"), ::testing::UnorderedElementsAre("Alpha", "Charlie"));
  EXPECT_EQ(global<UITableView>("tablev").numberOfRowsInSection(0), 2);
  play("Delta");
  EXPECT_EQ(songs.at(static_cast<std::size_t>(selected_row())), "Delta");
  EXPECT_THAT(titles("songArtist"), ::testing::IsEmpty());
}

TEST_F(NowPlaying, ASongWithTheSameTitleNeedsTheSameArtistAndAlbumToBeSelected) {
  const auto song = [](const char* artist, const char* album) {
    media::SongTags tags;
    tags.title = "Alpha";
    tags.artist = artist;
    tags.album = album;
    return tags;
  };
  add_song("same album", song("Yves", "One"));
  add_song("same artist", song("Xenia", "Two"));
  launch();
  const auto songs = titles("songItems");
  ASSERT_EQ(std::count(songs.begin(), songs.end(), "Alpha"), 3);
  NSInteger row = 0;
  for (const auto item : global<NSMutableArray>("songItems").of<MPMediaItem>()) {
    if (songs.at(static_cast<std::size_t>(row)) == "Alpha") {
      play(item);
      EXPECT_EQ(selected_row(), row) << sounding();
      EXPECT_FALSE(global<NSMutableArray>("songArtist").containsObject(item)) << sounding();
      const bool of_one = text(item.valueForProperty(MPMediaItemPropertyAlbumTitle)) == "One";
      EXPECT_EQ(titles("songArtist").size(), of_one ? 3u : 1u) << sounding();
    }
    ++row;
  }
}

TEST_F(NowPlaying, ASongWithoutAnAlbumMatchesNothing) {
  launch();
  play("Echo");
  EXPECT_EQ(label("title"), "Echo");
  EXPECT_EQ(selected_row(), -1);
  EXPECT_THAT(titles("songArtist"), ::testing::IsEmpty());
}

TEST_F(NowPlaying, ResumingRebuildsTheAlbumList) {
  launch();
  play("Bravo");
  advance(20);
  media().togglePlayPause();
  advance(3);
  global<NSMutableArray>("songArtist").removeAllObjects();
  advance(2);
  ASSERT_THAT(titles("songArtist"), ::testing::IsEmpty());
  media().togglePlayPause();
  advance(1.1);
  EXPECT_THAT(titles("songArtist"), ::testing::UnorderedElementsAre("Alpha", "Charlie"));
  EXPECT_FALSE(is("did"));
}

TEST_F(NowPlaying, WithoutAChangeTheAlbumListIsNotRebuilt) {
  launch();
  play("Bravo");
  global<NSMutableArray>("songArtist").removeAllObjects();
  advance(5);
  EXPECT_THAT(titles("songArtist"), ::testing::IsEmpty());
}

class RingInTime : public NowPlaying {
 protected:
  void SetUp() override {
    write_preferences(std::string("<key>play</key><string>time</string>") + kMarkedFile);
    launch();
  }
  float progress() const { return objc::send<float>(view("ring"), "progress"_sel); }
};

TEST_F(RingInTime, AdvancesBySecondsAndStopsAtTheEnd) {
  play("Bravo");
  // Half a second after each refresh the ring is at rest.
  advance(0.5);
  const float start = progress();
  for (int second = 1; second <= 5; ++second) {
    advance(1);
    EXPECT_NEAR(progress(), start + second / kSongSeconds, 1e-4);
  }
  // The system does not report the end of the song; the panel's count stops there.
  global<double>("elapsed") = kSongSeconds - 0.5;
  advance(1);
  EXPECT_EQ(progress(), 1);
}

TEST_F(RingInTime, TheSystemsReportCorrectsTheCount) {
  play("Bravo");
  advance(5);
  media().togglePlayPause();
  advance(0.1);
  media().togglePlayPause();
  const double reported = global<MPUNowPlayingController>("nowPlayingController").currentElapsed();
  ASSERT_NE(reported, global<double>("lastElapsed"));
  global<double>("elapsed") = kSongSeconds - 10;
  MethodSpy<"setProgress:animated:", void(UIView, float, BOOL)> moved(
      objc::class_of(view("ring").id()));
  refresh();
  EXPECT_EQ(global<double>("elapsed"), reported);
  ASSERT_EQ(moved.count(), 1);
  EXPECT_EQ(moved.last(), std::tuple(static_cast<float>(reported / kSongSeconds), YES));
}

TEST_F(RingInTime, OtherwiseIsLeftToTheVolume) {
  write_preferences(std::string("<key>play</key><string>volume</string>") + kMarkedFile);
  MethodSpy<"setProgress:animated:", void(UIView, float, BOOL)> moved(
      objc::class_of(view("ring").id()));
  play("Bravo");
  advance(3);
  EXPECT_EQ(moved.count(), 0);
}

}  // namespace
}  // namespace host::test
