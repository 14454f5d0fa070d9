#pragma once

#include <poll.h>

#include <string>
#include <vector>

#include "host/media_player/media_service.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/MediaPlayerUI/MPUNowPlayingController.h"
#include "platform/SpringBoard/SBMediaController.h"
#include "tests/support/host_test.h"
#include "tests/support/media_fixtures.h"

namespace host::test {

/// The media classes over four real songs, on a clock that the test steps:
/// Alpha and Bravo by Xenia on "One" (8 and 20 seconds, Alpha with a red cover 64 by 32), Charlie
/// by Yves on "Two", and Delta, which has only a title.
class MediaPlayerTest : public HostTest {
 protected:
  MediaPlayerTest();
  ~MediaPlayerTest() override;

  /// Starts the service, or restarts it as another process would.
  void start();
  media_player::MediaOptions options() const;

  std::string song_path(const std::string& name) const { return folder_ / ("music/" + name); }
  MPMediaItem item(const char* title) const;
  void play(const char* title) const;
  void add_song(const std::string& file, const char* title) const;

  /// Runs the loop until the condition is true, for at most a minute.
  template <class Condition>
  bool waits_for(Condition condition) {
    constexpr int kLongestWait = 60'000;  // in milliseconds
    constexpr int kPause = 10;
    for (int waited = 0; !condition() && waited < kLongestWait; waited += kPause) {
      pollfd pause{-1, 0, 0};
      ::poll(&pause, 1, kPause);
      loop.run_ready();
    }
    return condition();
  }

  SBMediaController media() const { return SBMediaController::sharedInstance(); }
  MPMusicPlayerController player() const { return MPMusicPlayerController::iPodMusicPlayer(); }
  MPMusicRepeatMode repeat_mode() const {
    return objc::send<MPMusicRepeatMode>(player(), "repeatMode"_sel);
  }
  void set_repeat_mode(MPMusicRepeatMode mode) const {
    objc::send<void>(player(), "setRepeatMode:"_sel, mode);
  }
  MPMusicShuffleMode shuffle_mode() const {
    return objc::send<MPMusicShuffleMode>(player(), "shuffleMode"_sel);
  }
  void set_shuffle_mode(MPMusicShuffleMode mode) const {
    objc::send<void>(player(), "setShuffleMode:"_sel, mode);
  }
  MPUNowPlayingController now_playing() const { return now_playing_.get(); }
  /// Returns a property of the playing item; empty when it is missing.
  std::string playing(NSString property) const;
  /// Returns the path that the playing engine reports; empty when nothing is loaded.
  std::string engine_path() const;
  bool is_engine_paused() const;
  double engine_position() const;

  media_tests::TemporaryFolder folder_;

 private:
  objc::Ref<MPUNowPlayingController> now_playing_;
};

std::string text(objc::Object string);
std::vector<std::string> titles(NSArray items);

/// Receives the two messages that the system sends on its own, in place of their previous
/// receivers.
class SystemListener {
 public:
  SystemListener();
  ~SystemListener();
  SystemListener(const SystemListener&) = delete;
  SystemListener& operator=(const SystemListener&) = delete;

  std::vector<int> states;
  std::vector<float> volumes;

 private:
  objc::Imp state_before_;
  objc::Imp volume_before_;
};

}  // namespace host::test
