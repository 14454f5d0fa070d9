#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

#include "tests/host/media_player/media_player_test.h"

namespace {

namespace fs = std::filesystem;

using host::media_player::MediaOptions;
using host::media_player::MediaProgress;
using host::media_player::MediaService;
using host::test::text;
using host::test::titles;
using testing::Contains;
using testing::Not;

std::string little_endian(std::uint32_t number, int bytes) {
  std::string made;
  for (int i = 0; i < bytes; ++i)
    made += static_cast<char>(number >> (8 * i) & 0xff);
  return made;
}

/// The smallest song: silence, without tags. Songs of different numbers differ in size, as real
/// ones do.
std::string tiny_song(std::uint32_t number) {
  const std::string samples(16 + number % 4096, '\x80');
  const auto size = static_cast<std::uint32_t>(samples.size());
  return "RIFF" + little_endian(36 + size, 4) + "WAVEfmt " + little_endian(16, 4) +
         little_endian(1, 2) + little_endian(1, 2) + little_endian(8000, 4) +
         little_endian(8000, 4) + little_endian(1, 2) + little_endian(8, 2) + "data" +
         little_endian(size, 4) + samples;
}

/// The library while its folders are watched and a song plays; the test waits as the screen does.
class WatchedMusic : public host::test::MediaPlayerTest {
 protected:
  MediaOptions watched() {
    MediaOptions options = this->options();
    options.pace = host::media::PlayerPace::real;
    options.watches_folders = true;
    options.on_progress = [this](const MediaProgress& progress) {
      is_ready_ = progress.stage == MediaProgress::Stage::kReady;
    };
    return options;
  }

  void start_and_play() {
    MediaService::start(watched());
    ASSERT_TRUE(waits_for([this] { return is_ready_; }));
    play("Bravo");
    ASSERT_TRUE(waits_for([this] { return is_playing(); }));
  }

  bool waits_for_songs(std::size_t count) {
    return waits_for([this, count] { return query_->items().count() == count; });
  }

  bool is_playing() const {
    return media().isPlaying() != NO && MediaService::current()->playback().duration() > 0;
  }
  std::vector<std::string> songs() const { return titles(query_->items()); }

  void write_tiny(const std::string& name, std::uint32_t number) const {
    media_tests::write_bytes(song_path(name), tiny_song(number));
  }

  bool waits_until_it_has(const char* title) {
    return waits_for([this, title] { return static_cast<bool>(item(title)); });
  }

  std::string number_of(const char* title) const {
    const auto number = item(title).valueForProperty(MPMediaItemPropertyPersistentID);
    return text(objc::cast<NSObject>(number).description());
  }

  std::string path_of(std::string_view title) const {
    const auto tracks = MediaService::current()->items()->library().tracks();
    const auto found = std::ranges::find(tracks, title, &host::media::Track::title);
    return found == tracks.end() ? std::string() : std::string(found->path);
  }

  objc::Ref<MPMediaQuery> query_ = objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init());
  bool is_ready_ = false;
};

TEST_F(WatchedMusic, SongsThatComeChangeMoveAndGoAreInTheLibraryWhileAnotherPlays) {
  start_and_play();
  add_song("e.flac", "Echo");
  EXPECT_TRUE(waits_until_it_has("Echo"));

  const std::string id = number_of("Echo");
  fs::create_directories(song_path("folder"));
  fs::rename(song_path("e.flac"), song_path("folder/f.flac"));
  EXPECT_TRUE(waits_for([this] { return path_of("Echo") == song_path("folder/f.flac"); }));
  EXPECT_EQ(number_of("Echo"), id);

  add_song("folder/f.flac", "Foxtrot");
  EXPECT_TRUE(waits_until_it_has("Foxtrot"));
  EXPECT_EQ(number_of("Foxtrot"), id);
  EXPECT_THAT(songs(), Not(Contains("Echo")));

  fs::remove_all(song_path("folder"));
  EXPECT_TRUE(waits_for_songs(4));
  EXPECT_TRUE(is_playing());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
}

TEST_F(WatchedMusic, ASongKeepsItsTitleWhenItsFileGoesWhileItPlays) {
  start_and_play();
  fs::remove(song_path("b.flac"));
  EXPECT_TRUE(waits_for_songs(3));
  EXPECT_TRUE(is_playing());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
  play("Charlie");
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Charlie");
}

TEST_F(WatchedMusic, AmongThousandsOfSongsChangesAreNoticed) {
  constexpr std::uint32_t kSongs = 20'000;
  constexpr std::uint32_t kInAFolder = 100;
  for (std::uint32_t i = 0; i < kSongs; ++i) {
    const std::string folder = "album-" + std::to_string(i / kInAFolder);
    if (i % kInAFolder == 0) fs::create_directories(song_path(folder));
    write_tiny(folder + "/" + std::to_string(i) + ".wav", i);
  }
  start_and_play();
  ASSERT_EQ(query_->items().count(), kSongs + 4);

  write_tiny("album-7/new.wav", kSongs);
  EXPECT_TRUE(waits_for_songs(kSongs + 5));
  const std::string id = number_of("new");
  fs::rename(song_path("album-7/new.wav"), song_path("album-8/new.wav"));
  EXPECT_TRUE(waits_for([this] { return path_of("new") == song_path("album-8/new.wav"); }));
  EXPECT_EQ(number_of("new"), id);
  fs::remove_all(song_path("album-8"));
  EXPECT_TRUE(waits_for_songs(kSongs + 4 - kInAFolder));
  fs::rename(song_path("album-9"), folder_ / "away");
  EXPECT_TRUE(waits_for_songs(kSongs + 4 - 2 * kInAFolder));
  EXPECT_TRUE(is_playing());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
}

TEST_F(WatchedMusic, AFloodOfChangesLeavesTheLoopFreeAndIsAFewScans) {
  constexpr std::uint64_t kChanges = 100'000;
  start_and_play();
  write_tiny("flood.wav", 1);
  ASSERT_TRUE(waits_until_it_has("flood"));
  const std::uint64_t before = MediaService::current()->library_number();
  std::uint64_t last = before;
  std::uint64_t turns = 0;
  std::uint64_t most_in_a_turn = 0;
  const auto counter = loop.add_turn_observer(0, [&] {
    const std::uint64_t now = MediaService::current()->library_number();
    most_in_a_turn = std::max(most_in_a_turn, now - std::exchange(last, now));
  });
  std::atomic<std::uint64_t> changes = 0;
  std::jthread flood([this, &changes] {
    const std::string names[] = {song_path("flood.wav"), song_path("ebb.wav")};
    for (; changes < kChanges; ++changes)
      fs::rename(names[changes % 2], names[(changes + 1) % 2]);
    media_tests::write_bytes(song_path("last.wav"), tiny_song(2));
  });
  EXPECT_TRUE(waits_for([&] {
    ++turns;
    return changes == kChanges;
  }));
  EXPECT_TRUE(waits_until_it_has("last"));
  EXPECT_TRUE(waits_for_songs(6));
  loop.remove_turn_observer(counter);
  EXPECT_LE(most_in_a_turn, 1u);
  EXPECT_GT(turns, last - before) << "the loop turned between the scans";
  EXPECT_LT(last - before, kChanges / 1000);
  EXPECT_TRUE(is_playing());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
}

TEST_F(WatchedMusic, AStormOfChangesIsAFewScansAndTheLastOneIsRight) {
  constexpr std::uint32_t kChanges = 40'000;
  start_and_play();
  const media_tests::CapturedLog log;
  const std::uint64_t before = MediaService::current()->library_number();
  std::atomic<bool> is_over = false;
  std::jthread storm([this, &is_over] {
    for (std::uint32_t i = 0; i < kChanges; ++i) {
      const std::string path = song_path(std::to_string(i % 50) + ".wav");
      if (i % 100 < 50) {
        media_tests::write_bytes(path, tiny_song(i));
      } else {
        fs::remove(path);
      }
    }
    media_tests::write_bytes(song_path("last.wav"), tiny_song(kChanges));
    is_over = true;
  });
  EXPECT_TRUE(waits_for([&is_over] { return is_over.load(); }));
  EXPECT_TRUE(waits_until_it_has("last"));
  EXPECT_TRUE(waits_for_songs(5));
  EXPECT_TRUE(is_playing());
  EXPECT_LT(MediaService::current()->library_number() - before, kChanges / 100);
  EXPECT_EQ(log.count("cannot be reached"), 0);
}

}  // namespace
