#include <gmock/gmock.h>

#include "tests/host/media_player/media_player_test.h"

namespace {

using host::test::SystemListener;
using host::test::text;
using testing::ElementsAre;

class MusicPlayer : public host::test::MediaPlayerTest {
 protected:
  MusicPlayer() { start(); }

  std::string current_title() const { return playing(MPMediaItemPropertyTitle); }
};

TEST_F(MusicPlayer, NothingPlaysAtFirst) {
  EXPECT_FALSE(player().nowPlayingItem());
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStateStopped);
  EXPECT_EQ(engine_path(), "");
}

TEST_F(MusicPlayer, TheChosenSongIsWhatTheEnginePlays) {
  play("Bravo");
  EXPECT_EQ(current_title(), "Bravo");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePlaying);
  EXPECT_EQ(engine_path(), song_path("b.flac"));
  EXPECT_FALSE(is_engine_paused());
  advance(2);
  EXPECT_NEAR(player().currentPlaybackTime(), 2, 1e-6);
  EXPECT_NEAR(engine_position(), 2, 0.002);
}

TEST_F(MusicPlayer, PauseKeepsThePositionAndPlayContinues) {
  play("Bravo");
  advance(2);
  player().pause();
  EXPECT_TRUE(is_engine_paused());
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePaused);
  advance(5);
  player().play();
  advance(1);
  EXPECT_NEAR(player().currentPlaybackTime(), 3, 1e-6);
}

TEST_F(MusicPlayer, NextAndPreviousGoThroughTheQueue) {
  play("Bravo");
  media().changeTrack(1);
  EXPECT_EQ(engine_path(), song_path("c.ogg"));
  media().changeTrack(-1);
  media().changeTrack(-1);
  EXPECT_EQ(engine_path(), song_path("a.flac"));
  EXPECT_EQ(current_title(), "Alpha");
}

TEST_F(MusicPlayer, ASongEndsInTimeEvenWhenNothingElseRuns) {
  play("Alpha");
  advance(7.5);
  EXPECT_EQ(current_title(), "Alpha");
  advance(1);
  EXPECT_EQ(current_title(), "Bravo");
  EXPECT_EQ(engine_path(), song_path("b.flac"));
  EXPECT_NEAR(player().currentPlaybackTime(), 0.5, 0.05);
}

TEST_F(MusicPlayer, SeekingMovesThePlayback) {
  play("Bravo");
  player().setCurrentPlaybackTime(12.5);
  EXPECT_NEAR(engine_position(), 12.5, 0.002);
}

TEST_F(MusicPlayer, PreparingLoadsTheFirstSongWithoutPlayingIt) {
  player().setQueueWithQuery(MPMediaQuery::alloc().init().autorelease());
  player().prepareToPlay();
  EXPECT_EQ(engine_path(), song_path("a.flac"));
  EXPECT_TRUE(is_engine_paused());
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStateStopped);
}

TEST_F(MusicPlayer, AnItemOutsideTheQueueChangesNothing) {
  const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
  query.addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue("One"_ns, MPMediaItemPropertyAlbumTitle));
  player().setQueueWithQuery(query);
  player().play();
  player().setNowPlayingItem(item("Charlie"));
  EXPECT_EQ(current_title(), "Alpha");
}

TEST_F(MusicPlayer, StoppingUnloadsTheSong) {
  play("Bravo");
  player().stop();
  EXPECT_FALSE(player().nowPlayingItem());
  EXPECT_EQ(engine_path(), "");
}

TEST_F(MusicPlayer, EveryStateChangeIsSentToThePlayer) {
  SystemListener listener;
  play("Bravo");
  EXPECT_THAT(listener.states, ElementsAre());
  advance(0.1);
  EXPECT_THAT(listener.states, ElementsAre(1));
  player().play();
  media().changeTrack(1);
  advance(0.1);
  EXPECT_THAT(listener.states, ElementsAre(1));
  player().pause();
  advance(0.1);
  player().stop();
  advance(0.1);
  EXPECT_THAT(listener.states, ElementsAre(1, 2, 0));
}

TEST_F(MusicPlayer, ASongThatCannotBePlayedIsSkipped) {
  media_tests::write_bytes(song_path("b.flac"), "no music any more");
  play("Bravo");
  advance(0.1);
  EXPECT_EQ(current_title(), "Charlie");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePlaying);
}

}  // namespace
