#include <dlfcn.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "host/media_player/demo_maker.h"
#include "tests/host/media_player/media_player_test.h"
#include "tests/support/told_user.h"

namespace {

using host::media_player::FirstScan;
using host::media_player::MediaOptions;
using host::media_player::MediaProgress;
using host::media_player::MediaService;
using host::test::titles;
using testing::Contains;
using testing::ElementsAre;

// The library while its files are scanned in the background; the test waits for updates as the
// screen does.
class RealTimeMusic : public host::test::MediaPlayerTest {
 protected:
  MediaOptions beside() {
    MediaOptions options = this->options();
    options.pace = host::media::PlayerPace::real;
    options.on_progress = [this](const MediaProgress& progress) { news_.push_back(progress); };
    return options;
  }

  bool is_ready() const {
    return !news_.empty() && news_.back().stage == MediaProgress::Stage::kReady;
  }

  void wait_until_ready() {
    ASSERT_TRUE(waits_for([this] { return is_ready(); }));
  }

  std::vector<std::string> songs() const { return titles(query_->items()); }

  objc::Ref<MPMediaQuery> query_ = objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init());
  std::vector<MediaProgress> news_;
};

TEST_F(RealTimeMusic, TheSongsOfTheFirstScanArriveWhenItIsOver) {
  MediaService::start(beside());
  wait_until_ready();
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
  EXPECT_EQ(news_.back().files.read, 4u);
  EXPECT_EQ(news_.back().songs, 4u);
}

TEST_F(RealTimeMusic, TheLastScanIsAvailableAtOnceAndNewSongsFollow) {
  MediaService::start(options());
  add_song("e.flac", "Echo");
  MediaService::start(beside());
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
  wait_until_ready();
  EXPECT_THAT(songs(), Contains("Echo"));
}

std::ptrdiff_t threads() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST_F(RealTimeMusic, TheFirstPictureComesBeforeTheScan) {
  MediaService::start(options());
  MediaService::stop();
  const auto before = threads();
  MediaService::start(beside());
  EXPECT_EQ(songs().size(), 4u);
  std::vector<std::ptrdiff_t> at_pictures;
  constexpr int kScreen = 200;  // The order in which it paints.
  loop.add_turn_observer(kScreen, [&at_pictures] { at_pictures.push_back(threads()); });
  wait_until_ready();
  ASSERT_GE(at_pictures.size(), 2u);
  EXPECT_EQ(at_pictures.front(), before);
  EXPECT_EQ(at_pictures.back(), before + 1);
  EXPECT_EQ(news_.back().songs, 4u);
}

TEST_F(RealTimeMusic, FilesThatAreBroughtBeforeTheFirstPictureArePlayed) {
  MediaService::start(options());
  const std::string other = folder_ / "other.flac";
  std::filesystem::copy(song_path("a.flac"), other);
  MediaService::start(beside());
  MediaService::current()->play_files({other});
  EXPECT_TRUE(waits_for([this, &other] { return engine_path() == other; }));
  EXPECT_EQ(songs().size(), 5u);
}

TEST_F(RealTimeMusic, AnIndexThatCannotBeKeptIsSaidOnce) {
  MediaOptions options = beside();
  std::filesystem::create_directories(options.index_path);
  const media_tests::CapturedLog log;
  MediaService::start(options);
  wait_until_ready();
  EXPECT_EQ(songs().size(), 4u);
  EXPECT_EQ(log.count("cannot be kept"), 1);
}

bool has_engine() {
  return ::dlopen("libmpv.so.2", RTLD_LAZY | RTLD_NOLOAD) != nullptr;
}

TEST_F(RealTimeMusic, TheEngineIsLoadedWhenASongIsFirstPlayed) {
  ASSERT_FALSE(has_engine()) << "this test needs its own process; run it with ctest";
  MediaService::start(beside());
  wait_until_ready();
  player().setQueueWithQuery(query_.get());
  player().setNowPlayingItem(item("Bravo"));
  MediaService::current()->playback().set_volume(0.3);
  MediaService::current()->playback().seek(7);

  MediaService::start(beside());
  wait_until_ready();
  auto& playback = MediaService::current()->playback();
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Bravo");
  EXPECT_EQ(playback.position(), 7);
  EXPECT_EQ(playback.volume(), 0.3);
  EXPECT_FALSE(has_engine());

  player().play();
  EXPECT_TRUE(waits_for([&] { return playback.position() > 7; }));
  EXPECT_TRUE(has_engine());
  EXPECT_LT(playback.position(), 20);
  EXPECT_NEAR(playback.engine().volume_percent, 30, 0.1);
}

class CountedJumps final : public host::media_player::MediaObserver {
 public:
  void media_did_change() override {}
  void media_did_jump() override { ++jumps; }
  int jumps = 0;
};

TEST_F(RealTimeMusic, ARepeatedSongFollowsItselfInTheEngine) {
  MediaService::start(beside());
  wait_until_ready();
  set_repeat_mode(MPMusicRepeatModeOne);
  play("Alpha");
  const host::media_player::Playback& playback = MediaService::current()->playback();
  ASSERT_TRUE(waits_for([&] { return playback.duration() > 0; }));
  CountedJumps counted;
  for (int round = 0; round < 2; ++round) {
    player().setCurrentPlaybackTime(playback.duration() - 0.3);
    MediaService::current()->add_observer(counted);
    EXPECT_TRUE(waits_for([&] { return counted.jumps > round; }));
    MediaService::current()->remove_observer(counted);
    EXPECT_TRUE(waits_for([&] { return playback.position() < 2 && playback.duration() > 0; }));
    EXPECT_EQ(engine_path(), song_path("a.flac"));
    EXPECT_FALSE(is_engine_paused());
  }
  EXPECT_EQ(counted.jumps, 2);
}

TEST_F(RealTimeMusic, TheDemoMusicIsMadeOnceAndItsProgressIsReported) {
  MediaOptions options = beside();
  options.music_folders.clear();
  options.demo = {folder_ / "demo-music", folder_ / "no-covers"};
  MediaService::start(options);
  EXPECT_THAT(songs(), ElementsAre());
  wait_until_ready();
  EXPECT_GE(songs().size(), 40u);
  const auto making = [](const MediaProgress& progress) {
    return progress.stage == MediaProgress::Stage::kMakingMusic && progress.made > 0;
  };
  EXPECT_TRUE(std::ranges::any_of(news_, making));

  news_.clear();
  MediaService::start(options);
  EXPECT_GE(songs().size(), 40u);
  wait_until_ready();
  EXPECT_TRUE(std::ranges::none_of(news_, making));
}

TEST_F(RealTimeMusic, DemoMusicThatHasNoPlaceIsSaidAndThePhoneStarts) {
  MediaOptions options = beside();
  std::filesystem::create_symlink("loop", folder_ / "loop");
  options.demo = {folder_ / "loop/demo-music", folder_ / "no-covers"};
  const media_tests::CapturedLog log;
  const host::test::ToldUser user;
  MediaService::start(options);
  wait_until_ready();
  EXPECT_THAT(songs(), ElementsAre("Alpha", "Bravo", "Charlie", "Delta"));
  EXPECT_THAT(user.words(), ElementsAre("The demo music cannot be made"));
  EXPECT_EQ(log.count("the demo music cannot be made"), 1);
}

TEST_F(RealTimeMusic, StoppingWhileTheDemoMusicIsMadeLeavesNothing) {
  { host::media_player::DemoMaker maker{{folder_ / "demo-music", folder_ / "no-covers"}}; }
  EXPECT_FALSE(std::filesystem::exists(folder_ / "demo-music"));
}

}  // namespace
