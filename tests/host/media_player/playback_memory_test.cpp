#include "host/media_player/playback_memory.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/media_player/media_player_test.h"
#include "tests/support/full_disk.h"
#include "tests/support/ordinary_user.h"
#include "tests/support/told_user.h"

namespace {

using host::media_player::PlaybackFile;
using host::media_player::RememberedPlayback;
using Pace = PlaybackFile::Pace;
using host::test::text;
using testing::ElementsAre;

class PlaybackMemory : public host::test::MediaPlayerTest {
 protected:
  std::string file() const { return options().memory_path; }

  host::foundation::PropertyListFile stored() const {
    return host::foundation::PropertyListFile(file());
  }
  RememberedPlayback read() const { return PlaybackFile(file(), Pace::kWaits).read(); }
  void leave(std::string_view bytes) const {
    std::filesystem::create_directories(folder_ / "caches");
    media_tests::write_bytes(file(), bytes);
  }
};

TEST_F(PlaybackMemory, KeepsWhatWasWritten) {
  RememberedPlayback kept;
  kept.queue = {0x7fffffffffffffff, 2};
  kept.song = 0x7fffffffffffffff;
  kept.position_seconds = 12.25;
  kept.volume = 0.5;
  ASSERT_TRUE(PlaybackFile(file(), Pace::kWaits).write(kept));
  const RememberedPlayback playback = read();
  ASSERT_TRUE(playback.queue);
  EXPECT_THAT(*playback.queue, ElementsAre(0x7fffffffffffffff, 2));
  EXPECT_EQ(playback.song, 0x7fffffffffffffffu);
  EXPECT_EQ(playback.position_seconds, 12.25);
  EXPECT_EQ(playback.volume, 0.5);
}

TEST_F(PlaybackMemory, WithoutWaitingItIsWrittenBeforeTheFileIsClosed) {
  RememberedPlayback kept;
  {
    PlaybackFile written(file(), Pace::kNeverWaits);
    for (kept.song = 1; kept.song < 20; ++kept.song)
      EXPECT_TRUE(written.write(kept));
  }
  EXPECT_EQ(read().song, 19u);
}

TEST_F(PlaybackMemory, ADamagedFileCountsAsMissing) {
  for (const char* bytes : {"", "this is no property list", "(1, 2)",
                            "{song = (1); position = x; volume = {}; queue = 3;}"}) {
    leave(bytes);
    const RememberedPlayback playback = read();
    EXPECT_EQ(playback.song, 0u) << bytes;
    EXPECT_EQ(playback.position_seconds, 0) << bytes;
    EXPECT_FALSE(playback.queue) << bytes;
    EXPECT_FALSE(playback.volume) << bytes;
  }
}

TEST_F(PlaybackMemory, AFolderInItsPlaceCountsAsMissing) {
  std::filesystem::create_directories(file());
  EXPECT_EQ(read().song, 0u);
}

TEST_F(PlaybackMemory, ALoopOfLinksInItsPlaceCountsAsMissing) {
  leave("");
  std::filesystem::remove(file());
  std::filesystem::create_symlink(file(), file());
  EXPECT_EQ(read().song, 0u);
}

TEST_F(PlaybackMemory, TheSongIsPausedAtItsPositionAfterARestart) {
  start();
  play("Bravo");
  media().setVolume(0.25F);
  advance(5);
  start();
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
  EXPECT_TRUE(media().isPaused());
  EXPECT_TRUE(is_engine_paused());
  EXPECT_NEAR(engine_position(), 5, 0.01);
  EXPECT_FLOAT_EQ(media().volume(), 0.25F);
  media().togglePlayPause();
  media().changeTrack(1);
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Charlie");
}

TEST_F(PlaybackMemory, IsWrittenWhileTheProcessLives) {
  start();
  play("Bravo");
  advance(0.5);
  EXPECT_NE(read().song, 0u);
  EXPECT_FALSE(read().queue);
}

TEST_F(PlaybackMemory, IsWrittenAFewTimesASecondWhileItChanges) {
  start();
  std::vector<std::optional<host::files::Stamp>> versions;
  for (int step = 1; step <= 100; ++step) {
    media().setVolume(static_cast<float>(step) / 200);
    advance(0.01);
    if (const auto stamp = stored().stamp(); versions.empty() || stamp != versions.back())
      versions.push_back(stamp);
  }
  EXPECT_THAT(versions, testing::SizeIs(testing::AllOf(testing::Ge(3u), testing::Le(6u))));
  advance(1);
  EXPECT_EQ(read().volume, 0.5);
}

TEST_F(PlaybackMemory, ACustomQueueIsKept) {
  start();
  const MPMediaQuery query = MPMediaQuery::alloc().init().autorelease();
  query.addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue("One"_ns, MPMediaItemPropertyAlbumTitle));
  player().setQueueWithQuery(query);
  player().setNowPlayingItem(item("Bravo"));
  player().play();
  start();
  player().play();
  media().changeTrack(1);
  EXPECT_FALSE(media().hasTrack());
}

TEST_F(PlaybackMemory, ASongThatIsGoneIsForgotten) {
  start();
  play("Bravo");
  host::media_player::MediaService::stop();
  std::filesystem::remove(song_path("b.flac"));
  start();
  EXPECT_FALSE(media().hasTrack());
  EXPECT_TRUE(media().togglePlayPause());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Alpha");
}

TEST_F(PlaybackMemory, AnUnreadableFileIsNotReplaced) {
  start();
  play("Bravo");
  host::media_player::MediaService::stop();
  const std::string before = media_tests::read_bytes(file());
  std::filesystem::permissions(file(), std::filesystem::perms::none);
  media_tests::CapturedLog log;
  {
    const OrdinaryUser user;
    start();
    EXPECT_FALSE(media().hasTrack());
    play("Charlie");
    advance(1);
    host::media_player::MediaService::stop();
  }
  EXPECT_EQ(media_tests::read_bytes(file()), before);
  EXPECT_EQ(log.count("cannot be read"), 1);
}

TEST_F(PlaybackMemory, AFullDiskIsReportedOnce) {
  start();
  media_tests::CapturedLog log;
  const host::test::ToldUser user;
  const FullDisk disk(1);
  for (const char* song : {"Bravo", "Charlie"}) {
    play(song);
    advance(1);
  }
  EXPECT_EQ(log.count("the playback state cannot be saved"), 1);
  EXPECT_THAT(user.words(), testing::ElementsAre(host::kDiskWarning));
}

TEST_F(PlaybackMemory, ADamagedFileDoesNotKeepTheMusicFromPlaying) {
  leave("<plist><dict><key>song");
  start();
  EXPECT_FALSE(media().hasTrack());
  EXPECT_TRUE(media().togglePlayPause());
}

}  // namespace
