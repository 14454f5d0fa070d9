#include "host/demo_music/demo_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <set>

#include "host/demo_music/albums.h"
#include "host/demo_music/piece.h"
#include "host/media/artwork_cache.h"
#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

std::string ended_process() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return std::to_string(child);
}

// Making the music takes seconds, so all tests share one library.
class DemoLibrary : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<TemporaryFolder>();
    fs::create_directories(*folder_ / "covers");
    for (unsigned i = 1; i <= 8; ++i) {
      write_bytes(*folder_ / ("covers/cover-" + std::to_string(i) + ".png"),
                  as_text(png_picture(600, 600, 0x111111 * i)));
    }
    fs::create_directories(*folder_ / ("Music.making-" + ended_process() + "/half"));
    fs::create_directories(*folder_ / ("Music.making-" + std::to_string(::getppid()) + "/half"));
    error_ = make_demo_library(*folder_ / "Music", *folder_ / "covers",
                               [](DemoProgress progress) { reports_.push_back(progress); });
    Index index{*folder_ / "music.db"};
    const std::vector roots = {*folder_ / "Music"};
    outcome_ = scan_folders(index, roots, [](const ScanProgress&) {});
  }

  static void TearDownTestSuite() {
    outcome_ = {};
    folder_.reset();
  }

  static inline std::unique_ptr<TemporaryFolder> folder_;
  static inline std::optional<std::string> error_;
  static inline std::vector<DemoProgress> reports_;
  static inline ScanOutcome outcome_;
};

}  // namespace

TEST_F(DemoLibrary, HoldsAtLeastFortySongsInEightAlbumsBySixArtists) {
  ASSERT_FALSE(error_) << *error_;
  std::map<std::uint64_t, int> albums;
  std::set<std::string_view> artists;
  std::set<std::string_view> titles;
  for (const Track& track : outcome_.library->tracks()) {
    ++albums[track.album_id];
    artists.insert(track.artist);
    titles.insert(track.title);
    EXPECT_GE(track.duration_seconds, 30) << track.title;
    EXPECT_LE(track.duration_seconds, 90) << track.title;
  }
  EXPECT_EQ(outcome_.progress.skipped, 0u);
  EXPECT_GE(outcome_.library->tracks().size(), 40u);
  EXPECT_EQ(titles.size(), outcome_.library->tracks().size());
  EXPECT_EQ(albums.size(), 8u);
  EXPECT_EQ(artists.size(), 6u);
  for (const auto& [album, count] : albums)
    EXPECT_GE(count, 5);
}

TEST_F(DemoLibrary, EverySongShowsTheCoverOfItsAlbum) {
  ArtworkCache cache{16 << 20};
  std::map<std::uint64_t, std::set<std::uint64_t>> keys;
  for (const Track& track : outcome_.library->tracks()) {
    keys[track.album_id].insert(track.artwork_key);
    const auto picture = cache.picture(track, 64);
    ASSERT_TRUE(picture) << track.title;
    EXPECT_EQ(picture->width, 64);
  }
  std::set<std::uint64_t> all;
  for (const auto& [album, of_album] : keys) {
    EXPECT_EQ(of_album.size(), 1u);
    all.insert(of_album.begin(), of_album.end());
  }
  EXPECT_EQ(all.size(), 8u);
}

TEST_F(DemoLibrary, ReportsEveryCountOnce) {
  ASSERT_FALSE(reports_.empty());
  EXPECT_EQ(reports_.back().made, demo_song_count());
  EXPECT_EQ(reports_.back().total, demo_song_count());
  for (std::size_t i = 1; i < reports_.size(); ++i) {
    EXPECT_GT(reports_[i].made, reports_[i - 1].made);
  }
}

TEST_F(DemoLibrary, LeavesOnlyTheTemporaryFolderOfARunningProcess) {
  std::vector<std::string> staging_folders;
  for (const auto& entry : fs::directory_iterator{folder_->path()}) {
    const std::string name = entry.path().filename();
    if (name.find("making") != name.npos) staging_folders.push_back(name);
  }
  EXPECT_THAT(staging_folders, testing::ElementsAre("Music.making-" + std::to_string(::getppid())));
}

TEST_F(DemoLibrary, IsMadeOnlyOnce) {
  bool has_worked = false;
  EXPECT_FALSE(make_demo_library(*folder_ / "Music", *folder_ / "covers",
                                 [&](DemoProgress) { has_worked = true; }));
  EXPECT_FALSE(has_worked);
}

TEST_F(DemoLibrary, StoppedHalfWayLeavesNothing) {
  const auto source = std::make_unique<std::stop_source>();
  const auto error = make_demo_library(
      *folder_ / "Stopped", *folder_ / "covers", [&](DemoProgress) { source->request_stop(); },
      source->get_token());
  EXPECT_TRUE(error);
  for (const auto& entry : fs::directory_iterator{folder_->path()}) {
    EXPECT_EQ(entry.path().filename().string().find("Stopped"), std::string::npos);
  }
}

TEST_F(DemoLibrary, ReportsWhyItCannotBeMade) {
  write_bytes(*folder_ / "file", "in the way");
  EXPECT_TRUE(make_demo_library(*folder_ / "file/Music", *folder_ / "covers", [](DemoProgress) {}));
}

TEST(DemoPiece, ChangesWithTheSeedAndOnlyWithIt) {
  const auto one = play_piece(DemoMood::bright, 7);
  EXPECT_EQ(one, play_piece(DemoMood::bright, 7));
  EXPECT_NE(one, play_piece(DemoMood::bright, 8));
  EXPECT_NE(one, play_piece(DemoMood::slow, 7));
}

TEST(DemoPiece, IsAudibleThroughoutAndNeverTooLoud) {
  for (const DemoMood mood : {DemoMood::glassy, DemoMood::electric, DemoMood::plain}) {
    const auto samples = play_piece(mood, 3);
    const auto [lowest, highest] = std::ranges::minmax(samples);
    EXPECT_GE(lowest, -1.0f);
    EXPECT_LE(highest, 1.0f);
    for (std::size_t second = 0; second + 3 < samples.size() / demo_sample_rate; ++second) {
      const auto part = std::span{samples}.subspan(second * demo_sample_rate, demo_sample_rate);
      EXPECT_GT(std::ranges::max(part), 0.01f) << "second " << second;
    }
  }
}
