#include <gmock/gmock.h>

#include "host/foundation/device_paths.h"
#include "host/media_player/music_choices.h"
#include "tests/host/media_player/media_player_test.h"

namespace {

using host::test::SystemListener;
using host::test::text;
using testing::ElementsAre;
using testing::FloatNear;

class MediaController : public host::test::MediaPlayerTest {
 protected:
  MediaController() { start(); }
};

TEST_F(MediaController, IsOneObject) {
  ASSERT_TRUE(media());
  EXPECT_EQ(media(), SBMediaController::sharedInstance());
}

TEST_F(MediaController, ReadsWhatTheUserHasChosenInSettingsWhenItIsTold) {
  using host::media_player::MediaService;
  using host::media_player::MusicChoices;
  const MusicChoices chosen{host::media::ReplayGain::album, host::media::Repeat::all, true, true};
  ASSERT_TRUE(host::media_player::write_music_choices(chosen));
  EXPECT_EQ(MediaService::current()->choices(), MusicChoices());
  objc::send<void>(media(), "_musicChoicesChanged"_sel);
  EXPECT_EQ(MediaService::current()->choices(), chosen);
}

TEST_F(MediaController, ToggleWithNothingLoadedPlaysTheFirstSongOfTheLibrary) {
  EXPECT_FALSE(media().isPlaying());
  EXPECT_TRUE(media().togglePlayPause());
  EXPECT_TRUE(media().isPlaying());
  EXPECT_EQ(engine_path(), song_path("a.flac"));
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "Alpha");
  EXPECT_EQ(playing(MPMediaItemPropertyArtist), "Xenia");
  EXPECT_EQ(playing(MPMediaItemPropertyAlbumTitle), "One");
}

TEST_F(MediaController, TogglePausesAndPlaysWhatIsLoaded) {
  play("Bravo");
  EXPECT_TRUE(media().togglePlayPause());
  EXPECT_FALSE(media().isPlaying());
  EXPECT_TRUE(media().isPaused());
  EXPECT_TRUE(is_engine_paused());
  EXPECT_TRUE(media().togglePlayPause());
  EXPECT_EQ(engine_path(), song_path("b.flac"));
  EXPECT_FALSE(is_engine_paused());
}

TEST_F(MediaController, ToggleInAnEmptyLibraryDoesNothing) {
  host::media_player::MediaOptions empty = options();
  empty.music_folders.clear();
  host::media_player::MediaService::start(empty);
  EXPECT_FALSE(media().togglePlayPause());
  EXPECT_FALSE(media().isPlaying());
}

TEST_F(MediaController, ChangesTheTrackInBothDirections) {
  EXPECT_FALSE(media().changeTrack(1));
  play("Bravo");
  EXPECT_TRUE(media().changeTrack(1));
  EXPECT_EQ(engine_path(), song_path("c.ogg"));
  EXPECT_TRUE(media().changeTrack(-1));
  EXPECT_EQ(engine_path(), song_path("b.flac"));
}

TEST_F(MediaController, EveryVolumeChangeIsReportedToItself) {
  SystemListener listener;
  advance(0.1);
  listener.volumes.clear();
  media().setVolume(0.25F);
  media().setVolume(0.25F);
  advance(0.1);
  media()._changeVolumeBy(0.5F);
  advance(0.1);
  EXPECT_THAT(listener.volumes, ElementsAre(FloatNear(0.25F, 1e-6F), FloatNear(0.75F, 1e-6F)));
}

TEST_F(MediaController, TheVolumeIsClamped) {
  media().setVolume(0.9F);
  media()._changeVolumeBy(0.5F);
  EXPECT_EQ(media().volume(), 1);
  media().setVolume(-3);
  EXPECT_EQ(media().volume(), 0);
}

TEST_F(MediaController, AtFullVolumeAStepUpIsNotReported) {
  media().setVolume(1);
  advance(0.1);
  SystemListener listener;
  media()._changeVolumeBy(0.1F);
  advance(0.1);
  EXPECT_THAT(listener.volumes, ElementsAre());
}

TEST_F(MediaController, WithoutTheServiceNothingPlays) {
  host::media_player::MediaService::stop();
  EXPECT_FALSE(media().togglePlayPause());
  EXPECT_FALSE(media().isPlaying());
  EXPECT_EQ(playing(MPMediaItemPropertyTitle), "");
  EXPECT_EQ(media().volume(), 0);
}

}  // namespace
