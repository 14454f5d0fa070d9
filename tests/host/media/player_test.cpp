#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>

#include "host/media/mpv_player.h"
#include "host/media/queue_player.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/told_user.h"

using namespace host::media;
using namespace media_tests;
using testing::ElementsAre;

namespace {

constexpr double sound_tolerance = 0.002;

TEST(SteppedPosition, RunsOnlyBetweenStartAndHalt) {
  SteppedPosition position;
  position.start(10);
  EXPECT_DOUBLE_EQ(position.at(12.5), 2.5);
  position.start(12);
  EXPECT_DOUBLE_EQ(position.at(12.5), 2.5);
  position.halt(13);
  EXPECT_DOUBLE_EQ(position.at(99), 3);
  position.jump(1, 99);
  position.start(100);
  EXPECT_DOUBLE_EQ(position.at(101), 2);
}

// A queue over the real engine, on a clock that the test steps.
class SteppedQueue : public testing::Test {
 protected:
  void SetUp() override {
    player_ = std::make_unique<MpvPlayer>(
        MpvOptions{"null", PlayerPace::stepped, [this] { return now_; }});
    write_tone(path(1), 30);
    write_tone(path(2), 20);
    write_tone(path(3), 4);
    write_bytes(path(4), "this is no music");
    queue_.emplace(*player_, [this](std::uint64_t id) -> SongFile {
      if (id > 4) return {{}, "song " + std::to_string(id) + " is out of reach"};
      return {path(id), {}};
    });
    queue_->on_song_change = [this] { heard_.push_back(queue_->current().value_or(0)); };
    queue_->on_state_change = [this](PlaybackState state) { states_.push_back(state); };
  }

  std::string path(std::uint64_t id) const {
    static constexpr const char* names[] = {"", "1.flac", "2.mp3", "3.ogg", "4.flac"};
    return folder_ / names[id];
  }

  void step(double seconds) {
    now_ += seconds;
    player_->pump();
  }

  TemporaryFolder folder_;
  double now_ = 1000;
  std::unique_ptr<MpvPlayer> player_;
  std::optional<QueuePlayer> queue_;
  std::vector<std::uint64_t> heard_;
  std::vector<PlaybackState> states_;
};

}  // namespace

TEST_F(SteppedQueue, PlayAndPauseReachTheEngine) {
  queue_->set_queue(make_song_list({1, 2}));
  EXPECT_EQ(player_->engine().path, "");
  queue_->play();
  EXPECT_EQ(player_->engine().path, path(1));
  EXPECT_FALSE(player_->engine().is_paused);
  queue_->pause();
  EXPECT_TRUE(player_->engine().is_paused);
  queue_->play();
  EXPECT_FALSE(player_->engine().is_paused);
  EXPECT_THAT(states_,
              ElementsAre(PlaybackState::playing, PlaybackState::paused, PlaybackState::playing));
}

TEST_F(SteppedQueue, PositionIsExactOnTheClockAndTheEngineFollows) {
  queue_->set_queue(make_song_list({1}));
  queue_->play();
  EXPECT_DOUBLE_EQ(queue_->position(), 0);
  step(2.5);
  EXPECT_DOUBLE_EQ(queue_->position(), 2.5);
  EXPECT_NEAR(player_->engine().position_seconds, 2.5, sound_tolerance);
  step(0.016);
  EXPECT_NEAR(queue_->position(), 2.516, 1e-9);
  EXPECT_NEAR(player_->engine().position_seconds, 2.516, sound_tolerance);
  queue_->pause();
  step(5);
  EXPECT_NEAR(queue_->position(), 2.516, 1e-9);
  queue_->seek(29.9);
  EXPECT_NEAR(player_->engine().position_seconds, 29.9, sound_tolerance);
  queue_->seek(-3);
  EXPECT_DOUBLE_EQ(queue_->position(), 0);
  EXPECT_NEAR(queue_->duration(), 30, 0.05);
}

TEST_F(SteppedQueue, TheEngineIsStillWhileTheClockIs) {
  queue_->set_queue(make_song_list({3}));
  queue_->play();
  step(1);
  const double before = player_->engine().position_seconds;
  // Wait in real time, longer than the rest of the song would take if the engine ran by itself.
  pollfd nothing{-1, 0, 0};
  ::poll(&nothing, 1, 300);
  player_->pump();
  EXPECT_DOUBLE_EQ(player_->engine().position_seconds, before);
  EXPECT_DOUBLE_EQ(queue_->position(), 1);
}

TEST_F(SteppedQueue, ASongThatEndsIsFollowedByTheNextAndTheLastByNothing) {
  queue_->set_queue(make_song_list({3, 2}));
  queue_->play();
  step(3.9);
  EXPECT_EQ(queue_->current(), 3u);
  step(0.2);
  EXPECT_EQ(queue_->current(), 2u);
  EXPECT_EQ(player_->engine().path, path(2));
  EXPECT_FALSE(player_->engine().is_paused);
  step(21);
  EXPECT_FALSE(queue_->current());
  EXPECT_EQ(queue_->state(), PlaybackState::stopped);
  EXPECT_EQ(player_->engine().path, "");
  EXPECT_THAT(heard_, ElementsAre(3, 2, 0));
}

TEST_F(SteppedQueue, NextAndPreviousChangeWhatTheEnginePlays) {
  queue_->set_queue(make_song_list({1, 2, 3}));
  queue_->play();
  queue_->next();
  EXPECT_EQ(player_->engine().path, path(2));
  queue_->pause();
  queue_->next();
  EXPECT_EQ(player_->engine().path, path(3));
  EXPECT_TRUE(player_->engine().is_paused);
  queue_->previous();
  queue_->previous();
  step(0);
  queue_->previous();
  EXPECT_EQ(player_->engine().path, path(1));
  queue_->play();
  queue_->set_current(3);
  EXPECT_EQ(player_->engine().path, path(3));
  queue_->next();
  EXPECT_EQ(player_->engine().path, "");
  EXPECT_EQ(queue_->state(), PlaybackState::stopped);
}

TEST_F(SteppedQueue, TheUserIsToldOfASongThatCannotBePlayed) {
  const host::test::ToldUser user;
  queue_->set_queue(make_song_list({4, 9, 2}));
  queue_->play();
  step(0);
  EXPECT_THAT(user.words(), ElementsAre("Cannot play 4.flac"));
}

TEST_F(SteppedQueue, ASongThatCannotBePlayedIsSkipped) {
  const CapturedLog log;
  queue_->set_queue(make_song_list({4, 9, 2}));
  queue_->play();
  step(0);
  EXPECT_EQ(queue_->current(), 2u);
  EXPECT_EQ(player_->engine().path, path(2));
  EXPECT_EQ(queue_->state(), PlaybackState::playing);
  EXPECT_EQ(log.count("cannot be played"), 1);
}

TEST_F(SteppedQueue, AQueueOfNothingPlayableStops) {
  std::filesystem::remove(path(1));
  queue_->set_queue(make_song_list({4, 1, 9, 4}));
  queue_->play();
  for (int i = 0; i < 4; ++i)
    step(0);
  EXPECT_FALSE(queue_->current());
  EXPECT_EQ(queue_->state(), PlaybackState::stopped);
}

TEST_F(SteppedQueue, SongsOutOfReachAreSkippedBothWaysWithOneLine) {
  queue_->set_queue(make_song_list({1, 8, 9, 3}));
  queue_->play();
  const CapturedLog log;
  queue_->next();
  EXPECT_EQ(queue_->current(), 3u);
  EXPECT_EQ(log.count("song 8 is out of reach; it and 1 more are skipped"), 1);
  queue_->previous();
  EXPECT_EQ(queue_->current(), 1u);
  EXPECT_EQ(log.count("song 9 is out of reach; it and 1 more are skipped"), 1);
  EXPECT_EQ(player_->engine().path, path(1));
}

TEST_F(SteppedQueue, WithNoPlayableSongBeforeItASongStartsAgain) {
  queue_->set_queue(make_song_list({8, 9, 1}));
  queue_->play();
  step(4);
  const CapturedLog log;
  queue_->previous();
  EXPECT_EQ(queue_->current(), 1u);
  EXPECT_DOUBLE_EQ(queue_->position(), 0);
  EXPECT_EQ(player_->engine().path, path(1));
  EXPECT_EQ(log.count("skipped"), 1);
}

TEST_F(SteppedQueue, ASongOutOfReachIsReplacedByTheNext) {
  queue_->set_queue(make_song_list({1, 9, 3}));
  EXPECT_TRUE(queue_->set_current(9));
  EXPECT_EQ(queue_->current(), 3u);
  EXPECT_FALSE(queue_->resume_paused(9, 2));
}

TEST_F(SteppedQueue, AnEmptyQueueDoesNothing) {
  queue_->play();
  queue_->next();
  queue_->previous();
  queue_->seek(3);
  EXPECT_EQ(queue_->state(), PlaybackState::stopped);
  EXPECT_DOUBLE_EQ(queue_->position(), 0);
  EXPECT_THAT(heard_, ElementsAre());
}

TEST_F(SteppedQueue, ReplacingTheQueueContinuesASongThatIsInBoth) {
  queue_->set_queue(make_song_list({1, 2}));
  queue_->play();
  step(5);
  queue_->set_queue(make_song_list({3, 1}));
  EXPECT_DOUBLE_EQ(queue_->position(), 5);
  EXPECT_EQ(queue_->state(), PlaybackState::playing);
  queue_->set_queue(make_song_list({2, 3}));
  EXPECT_EQ(queue_->state(), PlaybackState::stopped);
  EXPECT_EQ(player_->engine().path, "");
}

TEST_F(SteppedQueue, VolumeReachesTheEngine) {
  player_->set_volume(0.25);
  EXPECT_NEAR(player_->engine().volume_percent, 25, 1e-9);
  player_->set_volume(7);
  EXPECT_DOUBLE_EQ(player_->volume(), 1);
}
