#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/media_player/media_player_test.h"

namespace {

using host::media_player::MediaObserver;
using host::media_player::MediaService;
using host::test::text;

class MediaObservers : public host::test::MediaPlayerTest, public MediaObserver {
 protected:
  MediaObservers() {
    start();
    service().add_observer(*this);
  }
  ~MediaObservers() override { service().remove_observer(*this); }

  static MediaService& service() { return *MediaService::current(); }
  void media_did_change() override { ++changes_; }
  void media_did_jump() override { jumps_.push_back(service().playback().position()); }

  int changes_ = 0;
  std::vector<double> jumps_;
};

TEST_F(MediaObservers, AreToldOfJumpsWithinASongAndOfNoOthers) {
  play("Bravo");
  media().changeTrack(1);
  player().pause();
  player().play();
  advance(21);
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Delta") << "Charlie is over";
  player().setNowPlayingItem(item("Bravo"));
  media().changeTrack(-1);
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Alpha");
  EXPECT_THAT(jumps_, testing::IsEmpty());
  player().setCurrentPlaybackTime(5);
  EXPECT_THAT(jumps_, testing::ElementsAre(5));
}

TEST_F(MediaObservers, ASongThatBeginsAgainIsAJump) {
  play("Alpha");
  advance(3);
  media().changeTrack(-1);
  EXPECT_THAT(jumps_, testing::ElementsAre(0)) << "nothing comes before the first song";
  advance(3);
  player().setNowPlayingItem(item("Alpha"));
  EXPECT_THAT(jumps_, testing::ElementsAre(0, 0));
}

TEST_F(MediaObservers, ARepeatedSongIsAJump) {
  play("Alpha");
  set_repeat_mode(MPMusicRepeatModeOne);
  EXPECT_GT(changes_, 0);
  advance(8.5);
  ASSERT_EQ(jumps_.size(), 1u);
  EXPECT_NEAR(jumps_[0], 0, 0.1);
}

TEST_F(MediaObservers, ARepeatedQueueHasNoEnd) {
  play("Delta");
  set_repeat_mode(MPMusicRepeatModeAll);
  EXPECT_TRUE(service().can_go_next());
  play("Alpha");
  EXPECT_TRUE(service().can_go_previous());
}

TEST_F(MediaObservers, HearOfSongStateAndVolume) {
  play("Bravo");
  EXPECT_GT(std::exchange(changes_, 0), 0);
  player().pause();
  EXPECT_GT(std::exchange(changes_, 0), 0);
  media().setVolume(0.25F);
  EXPECT_GT(std::exchange(changes_, 0), 0);
  advance(5);
  EXPECT_EQ(changes_, 0) << "time that passes is no change";
}

TEST_F(MediaObservers, TheQueueSaysWhereItGoesOn) {
  EXPECT_TRUE(service().can_play()) << "the whole library";
  EXPECT_FALSE(service().can_go_next());
  play("Alpha");
  EXPECT_TRUE(service().can_go_next());
  EXPECT_FALSE(service().can_go_previous());
  play("Delta");
  EXPECT_FALSE(service().can_go_next());
  EXPECT_TRUE(service().can_go_previous());
}

TEST_F(MediaObservers, SongsInTheCloudAreNoWayToGo) {
  for (const char* const name : {"d", "e"})
    media_tests::write_bytes(
        song_path(std::string(name) + ".cloud.toml"),
        std::string("title = \"Zephyr\"\nartist = \"Xenia\"\nalbum = \"") + name + "\"\n");
  service().remove_observer(*this);
  start();
  service().add_observer(*this);
  ASSERT_TRUE(item("Zephyr"));
  play("Delta");
  EXPECT_FALSE(service().can_go_next()) << "only songs of the cloud follow";
}

TEST_F(MediaObservers, WithoutMusicNothingCanBePlayed) {
  service().remove_observer(*this);
  std::filesystem::remove_all(folder_ / "music");
  std::filesystem::create_directories(folder_ / "music");
  start();
  service().add_observer(*this);
  EXPECT_FALSE(service().can_play());
}

}  // namespace
