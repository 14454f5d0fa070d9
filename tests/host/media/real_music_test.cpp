#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "host/media/mpv_player.h"
#include "host/media/queue_player.h"
#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace fs = std::filesystem;

namespace {

// The songs of a package, in the folder that an environment variable names.
class RealMusic : public testing::Test {
 protected:
  void SetUp() override {
    const char* named = std::getenv("REAL_MUSIC");
    ASSERT_TRUE(named) << "REAL_MUSIC names no folder";
    music_ = named;
    Index index{folder_ / "music.db"};
    const std::vector roots = {music_};
    outcome_ = scan_folders(index, roots, [](const ScanProgress&) {});
  }

  std::size_t songs_on_disk() const {
    const auto files = fs::directory_iterator{music_};
    return static_cast<std::size_t>(std::count_if(begin(files), end(files), [](const auto& file) {
      return file.path().extension() == ".ogg";
    }));
  }

  TemporaryFolder folder_;
  std::string music_;
  ScanOutcome outcome_;
};

TEST_F(RealMusic, EverySongIsListedWithItsLength) {
  EXPECT_GT(songs_on_disk(), 10u);
  EXPECT_EQ(outcome_.library->tracks().size(), songs_on_disk());
  EXPECT_EQ(outcome_.progress.skipped, 0u);
  for (const Track& track : outcome_.library->tracks()) {
    EXPECT_FALSE(track.title.empty()) << track.path;
    EXPECT_GT(track.duration_seconds, 20) << track.path;
  }
}

TEST_F(RealMusic, ATaggedSongSaysWhoMadeIt) {
  const auto tracks = outcome_.library->tracks();
  const auto palace =
      std::ranges::find_if(tracks, [](const Track& track) { return track.title == "Palace"; });
  ASSERT_NE(palace, tracks.end());
  EXPECT_EQ(palace->artist, "Will Savino");
  EXPECT_EQ(palace->album, "HyperRogue");
  EXPECT_GE(outcome_.library->album(palace->album_id).size(), 1u);
}

// The playback engine does not know the format of a few of them. They must not hold up the others.
TEST_F(RealMusic, EverySongPlaysOrIsLoggedAndSkipped) {
  constexpr std::size_t most_unknown = 3;
  double now = 100;
  const auto player =
      std::make_unique<MpvPlayer>(MpvOptions{"null", PlayerPace::stepped, [&now] { return now; }});
  QueuePlayer queue{*player, [this](std::uint64_t id) -> SongFile {
                      return {std::string{outcome_.library->find(id)->path}, {}};
                    }};
  queue.set_queue(outcome_.library->songs());
  const CapturedLog log;
  std::size_t played = 0;
  for (queue.play(); queue.state() == PlaybackState::playing; queue.next()) {
    // A song that cannot be played is replaced by the next, which may be unplayable too.
    for (auto song = queue.loaded(); player->pump(), queue.loaded() != song;)
      song = queue.loaded();
    if (!queue.loaded()) break;
    now += 3;
    player->pump();
    const Track& track = *outcome_.library->find(*queue.loaded());
    EXPECT_EQ(player->engine().path, track.path);
    ++played;
    EXPECT_NEAR(player->engine().position_seconds, 3, 0.05) << track.path;
    EXPECT_NEAR(queue.duration(), track.duration_seconds, 0.5) << track.path;
  }
  const auto unknown = static_cast<std::size_t>(log.count("cannot be played"));
  EXPECT_EQ(played + unknown, songs_on_disk());
  EXPECT_LE(unknown, most_unknown);
}

}  // namespace
