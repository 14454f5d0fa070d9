#include "host/media/mpv_player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include <chrono>

#include "host/demo_music/audio_file.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;
using testing::ElementsAre;

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

/// Counts the songs that have ended; none may fail.
struct EndsOfSongs : PlayerListener {
  int ends = 0;
  void player_did_reach_end() override { ++ends; }
  void player_did_fail(const std::string& path, const std::string& reason) override {
    ADD_FAILURE() << path << ": " << reason;
    ++ends;
  }
};

TEST(MpvPlayer, PlaysEveryKindOfSong) {
  EndsOfSongs listener;
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
  EndsOfSongs listener;
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
