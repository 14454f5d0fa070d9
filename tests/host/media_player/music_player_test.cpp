#include <gmock/gmock.h>

#include <filesystem>

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

TEST_F(MusicPlayer, RepeatsAndShufflesNothingOnANewPhone) {
  EXPECT_EQ(repeat_mode(), MPMusicRepeatModeNone);
  EXPECT_EQ(shuffle_mode(), MPMusicShuffleModeOff);
  play("Delta");
  advance(20.5);
  EXPECT_EQ(current_title(), "");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStateStopped);
}

TEST_F(MusicPlayer, ARepeatedSongBeginsAgainAndIsLeftByAButton) {
  set_repeat_mode(MPMusicRepeatModeOne);
  play("Alpha");
  advance(8 + 8 + 8 + 3);
  EXPECT_EQ(current_title(), "Alpha");
  EXPECT_NEAR(player().currentPlaybackTime(), 3, 0.1);
  EXPECT_NEAR(engine_position(), 3, 0.1);
  media().changeTrack(1);
  EXPECT_EQ(current_title(), "Bravo");
}

TEST_F(MusicPlayer, AfterTheLastOfRepeatedSongsComesTheFirst) {
  set_repeat_mode(MPMusicRepeatModeAll);
  play("Delta");
  advance(21);
  EXPECT_EQ(current_title(), "Alpha");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePlaying);
  media().changeTrack(-1);
  EXPECT_EQ(current_title(), "Delta");
}

TEST_F(MusicPlayer, RepeatingSongsThatCannotBePlayedStops) {
  set_repeat_mode(MPMusicRepeatModeAll);
  play("Alpha");
  for (const char* const file : {"a.flac", "b.flac", "c.ogg", "d.flac"})
    media_tests::write_bytes(song_path(file), "no music any more");
  advance(9);
  EXPECT_EQ(current_title(), "");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStateStopped);
}

TEST_F(MusicPlayer, RepeatingSongsOfTheCloudStops) {
  for (const char* const file : {"a.flac", "b.flac", "c.ogg", "d.flac"})
    std::filesystem::remove(song_path(file));
  media_tests::write_bytes(song_path("e.cloud.toml"),
                           "title = \"Zephyr\"\nartist = \"Xenia\"\nalbum = \"One\"\n");
  start();
  set_repeat_mode(MPMusicRepeatModeAll);
  play("Zephyr");
  EXPECT_EQ(current_title(), "");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStateStopped);
}

TEST_F(MusicPlayer, AllShuffledSongsArePlayedOnceAndInTheSameOrderEachTime) {
  const auto heard = [this] {
    start();
    play("Charlie");
    std::vector<std::string> titles;
    for (; !current_title().empty(); media().changeTrack(1))
      titles.push_back(current_title());
    return titles;
  };
  set_shuffle_mode(MPMusicShuffleModeSongs);
  const auto first = heard();
  ASSERT_EQ(first.size(), 4u);
  EXPECT_EQ(first[0], "Charlie");
  EXPECT_THAT(first, testing::UnorderedElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
  EXPECT_EQ(heard(), first);
}

TEST_F(MusicPlayer, ModesAreKeptUntilOthersAreChosen) {
  set_repeat_mode(MPMusicRepeatModeAll);
  set_shuffle_mode(MPMusicShuffleModeAlbums);
  start();
  EXPECT_EQ(repeat_mode(), MPMusicRepeatModeAll);
  EXPECT_EQ(shuffle_mode(), MPMusicShuffleModeSongs);
  set_repeat_mode(MPMusicRepeatModeDefault);
  set_shuffle_mode(MPMusicShuffleModeDefault);
  set_repeat_mode(static_cast<MPMusicRepeatMode>(17));
  EXPECT_EQ(repeat_mode(), MPMusicRepeatModeAll);
  EXPECT_EQ(shuffle_mode(), MPMusicShuffleModeSongs);
}

TEST_F(MusicPlayer, ASongThatCannotBePlayedIsSkipped) {
  media_tests::write_bytes(song_path("b.flac"), "no music any more");
  play("Bravo");
  advance(0.1);
  EXPECT_EQ(current_title(), "Charlie");
  EXPECT_EQ(player().playbackState(), MPMusicPlaybackStatePlaying);
}

}  // namespace
