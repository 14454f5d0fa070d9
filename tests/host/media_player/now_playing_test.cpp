#include "platform/Foundation/NSDictionary.h"
#include "tests/host/media_player/media_player_test.h"

namespace {

using host::test::text;

class NowPlaying : public host::test::MediaPlayerTest {
 protected:
  NowPlaying() { start(); }

  std::string info(NSString key) const {
    return text(now_playing().currentNowPlayingInfo().objectForKey(key));
  }
};

constexpr double kTold = 0.005;

TEST_F(NowPlaying, IsNothingWhenNothingIsLoaded) {
  EXPECT_FALSE(now_playing().currentNowPlayingInfo());
  EXPECT_FALSE(now_playing().currentNowPlayingArtwork());
  EXPECT_EQ(now_playing().currentElapsed(), 0);
  EXPECT_EQ(now_playing().currentDuration(), 0);
}

TEST_F(NowPlaying, ContainsTheTextsOfTheSong) {
  play("Charlie");
  EXPECT_EQ(info("kMRMediaRemoteNowPlayingInfoTitle"_ns), "Charlie");
  EXPECT_EQ(info("kMRMediaRemoteNowPlayingInfoArtist"_ns), "Yves");
  EXPECT_EQ(info("kMRMediaRemoteNowPlayingInfoAlbum"_ns), "Two");
  EXPECT_NEAR(now_playing().currentDuration(), 20, 0.1);
}

TEST_F(NowPlaying, LeavesOutWhatTheSongLacks) {
  play("Delta");
  EXPECT_EQ(now_playing().currentNowPlayingInfo().count(), 1u);
}

TEST_F(NowPlaying, TheArtworkIsOneImageWhileTheSongPlays) {
  play("Alpha");
  const UIImage artwork = now_playing().currentNowPlayingArtwork();
  ASSERT_TRUE(artwork);
  EXPECT_EQ(artwork.size().width, 64);
  advance(3);
  EXPECT_EQ(now_playing().currentNowPlayingArtwork(), artwork);
  media().changeTrack(1);
  EXPECT_FALSE(now_playing().currentNowPlayingArtwork());
}

TEST_F(NowPlaying, TheElapsedTimeDoesNotChangeWithoutAReport) {
  play("Bravo");
  const double reported = now_playing().currentElapsed();
  EXPECT_NEAR(reported, 0, kTold);
  advance(5);
  EXPECT_EQ(now_playing().currentElapsed(), reported);
}

TEST_F(NowPlaying, ASeekIsReported) {
  play("Bravo");
  player().setCurrentPlaybackTime(7);
  EXPECT_NEAR(now_playing().currentElapsed(), 7, kTold);
}

TEST_F(NowPlaying, AResumeIsReportedAtTheSamePosition) {
  play("Bravo");
  advance(6);
  player().pause();
  const double paused = now_playing().currentElapsed();
  EXPECT_NEAR(paused, 6, kTold);
  advance(6);
  EXPECT_EQ(now_playing().currentElapsed(), paused);
  player().play();
  EXPECT_NEAR(now_playing().currentElapsed(), 6, kTold);
  EXPECT_NE(now_playing().currentElapsed(), paused);
}

TEST_F(NowPlaying, TheFirstSongIsReported) {
  play("Bravo");
  EXPECT_NE(now_playing().currentElapsed(), 0);
}

TEST_F(NowPlaying, ANewSongIsReportedEvenAtTheSamePosition) {
  play("Alpha");
  const double alpha = now_playing().currentElapsed();
  media().changeTrack(1);
  const double bravo = now_playing().currentElapsed();
  media().changeTrack(1);
  const double charlie = now_playing().currentElapsed();
  EXPECT_NE(alpha, bravo);
  EXPECT_NE(bravo, charlie);
  EXPECT_NE(alpha, charlie);
  EXPECT_NEAR(charlie, 0, kTold);
}

TEST_F(NowPlaying, ASongThatFollowsByItselfIsReported) {
  play("Alpha");
  const double alpha = now_playing().currentElapsed();
  advance(8.5);
  EXPECT_EQ(info("kMRMediaRemoteNowPlayingInfoTitle"_ns), "Bravo");
  EXPECT_NE(now_playing().currentElapsed(), alpha);
}

}  // namespace
