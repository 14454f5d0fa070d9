#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>

#include "host/demo_music/audio_file.h"
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

TEST(MpvPlayer, OpensNoPipe) {
  struct Reasons : PlayerListener {
    std::vector<std::string> all;
    void player_did_reach_end() override {}
    void player_did_fail(const std::string&, const std::string& reason) override {
      all.push_back(reason);
    }
  } reasons;
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe.mp3").c_str(), 0600), 0);
  const auto player = std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::real, {}});
  player->set_listener(&reasons);
  for (const std::string& path : {folder / "pipe.mp3", std::string{"/dev/zero"}, folder.path()}) {
    player->load(path);
    player->pump();
  }
  EXPECT_THAT(reasons.all,
              ElementsAre("is not a plain file", "is not a plain file", "is not a plain file"));
}

// Without a device the engine plays on in silence.
TEST(MpvPlayer, AMissingSoundDeviceIsOneLineAStart) {
  struct Ends : PlayerListener {
    int count = 0;
    void player_did_reach_end() override { ++count; }
    void player_did_fail(const std::string&, const std::string&) override {}
  } ends;
  const TemporaryFolder folder;
  write_tone(folder / "short.wav", 0.6);
  ::setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
  ::setenv("PIPEWIRE_REMOTE", "nowhere", 1);
  const CapturedLog log;
  testing::internal::CaptureStderr();
  const auto player =
      std::make_unique<MpvPlayer>(MpvOptions{"alsa,pipewire", PlayerPace::real, {}});
  player->set_listener(&ends);
  player->play();
  for (int song = 1; song <= 2; ++song) {
    player->load(folder / "short.wav");
    pollfd waiting{player->descriptor(), POLLIN, 0};
    while (ends.count < song && ::poll(&waiting, 1, 10'000) == 1)
      player->pump();
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(ends.count, 2);
  EXPECT_EQ(log.count("no sound device"), 1);
}

void pump_until_heard(MpvPlayer& player) {
  pollfd waiting{player.descriptor(), POLLIN, 0};
  for (int look = 0; player.position() <= 0 && look < 3000; ++look) {
    ::poll(&waiting, 1, 10);
    player.pump();
  }
}

// The engine is loaded by a thread, while the user goes on.
TEST(MpvPlayer, TheLatestSongIsOpenedOnceTheEngineIsLoaded) {
  const TemporaryFolder folder;
  for (const char* name : {"first.wav", "second.wav"})
    write_tone(folder / name, 5);
  MpvPlayer player{MpvOptions{"null", PlayerPace::real, {}}};
  player.play();
  player.load(folder / "first.wav");
  player.load(folder / "second.wav");
  EXPECT_EQ(player.engine().path, "");
  pump_until_heard(player);
  EXPECT_EQ(player.engine().path, folder / "second.wav");
}

TEST(MpvPlayer, PlaysEveryKindOfSong) {
  struct Listener : PlayerListener {
    int ends = 0;
    void player_did_reach_end() override { ++ends; }
    void player_did_fail(const std::string& path, const std::string& reason) override {
      ADD_FAILURE() << path << ": " << reason;
      ++ends;
    }
  } listener;
  const TemporaryFolder folder;
  std::vector<std::string> songs = {MEDIA_TEST_DATA "/tiny.m4a", MEDIA_TEST_DATA "/tiny.aac",
                                    MEDIA_TEST_DATA "/tiny.wma", MEDIA_TEST_DATA "/tiny.wv"};
  for (const char* name : {"a.aiff", "a.flac", "a.mp3", "a.ogg", "a.opus"}) {
    write_tone(folder / name, 0.2);
    songs.push_back(folder / name);
  }
  const auto player = std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::real, {}});
  player->set_listener(&listener);
  player->play();
  for (int played = 0; const std::string& song : songs) {
    player->load(song);
    // What is longer than it has to be is not waited for.
    bool has_skipped = false;
    pollfd waiting{player->descriptor(), POLLIN, 0};
    ++played;
    while (listener.ends < played && ::poll(&waiting, 1, 10'000) == 1) {
      player->pump();
      if (player->duration() > 2 && !std::exchange(has_skipped, true)) player->seek(3.7);
    }
    ASSERT_EQ(listener.ends, played) << song;
  }
}

TEST(MpvPlayer, SilentSongsOfAnyRateTakeTheirTimeThoughPaused) {
  struct Listener : PlayerListener {
    int ends = 0;
    void player_did_reach_end() override { ++ends; }
    void player_did_fail(const std::string& path, const std::string& reason) override {
      ADD_FAILURE() << path << ": " << reason;
    }
  } listener;
  constexpr double length = 1;
  // A pause may empty the buffers of the engine and the output.
  constexpr double most_buffered = 0.45;
  const TemporaryFolder folder;
  const auto player = std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::real, {}});
  player->set_listener(&listener);
  pollfd waiting{player->descriptor(), POLLIN, 0};
  for (const int rate : {8'000, 22'050, 44'100, 96'000}) {
    const std::string song = folder / (std::to_string(rate) + ".wav");
    const auto samples = static_cast<std::size_t>(length * rate);
    ASSERT_TRUE(write_audio(song, std::vector<float>(samples), rate));
    const auto start = std::chrono::steady_clock::now();
    const int ends_before = listener.ends;
    player->load(song);
    player->play();
    for (int looks = 0; player->position() < length / 4 && looks < 500; ++looks) {
      ::poll(&waiting, 1, 20);
      player->pump();
    }
    player->pause();
    player->play();
    while (listener.ends == ends_before && ::poll(&waiting, 1, 10'000) == 1)
      player->pump();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    ASSERT_EQ(listener.ends, ends_before + 1) << rate;
    EXPECT_GE(taken.count(), length - most_buffered) << rate;
  }
}

TEST(MpvPlayer, PlaysInRealTimeAndWakesTheMainLoopAtTheEnd) {
  struct Listener : PlayerListener {
    int ends = 0;
    std::vector<std::string> failures;
    void player_did_reach_end() override { ++ends; }
    void player_did_fail(const std::string& path, const std::string&) override {
      failures.push_back(path);
    }
  } listener;
  const TemporaryFolder folder;
  write_tone(folder / "short.wav", 0.4);
  write_bytes(folder / "letter.flac", "no music");
  const auto player = std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::real, {}});
  player->set_listener(&listener);
  player->load(folder / "short.wav");
  player->play();
  auto pump_until = [&](auto is_done) {
    pollfd waiting{player->descriptor(), POLLIN, 0};
    while (!is_done() && ::poll(&waiting, 1, 10'000) == 1)
      player->pump();
  };
  pump_until([&] { return listener.ends == 1; });
  EXPECT_EQ(listener.ends, 1);
  player->load(folder / "letter.flac");
  pump_until([&] { return !listener.failures.empty(); });
  EXPECT_THAT(listener.failures, ElementsAre(folder / "letter.flac"));
  EXPECT_EQ(listener.ends, 1);
}
