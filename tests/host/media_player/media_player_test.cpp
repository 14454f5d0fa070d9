#include "tests/host/media_player/media_player_test.h"

#include <filesystem>

#include "host/foundation/device_paths.h"
#include "host/media_player/exports.h"
#include "host/quartzcore/service/exports.h"
#include "host/runtime/hooking.h"
#include "host/uikit/drawing/exports.h"

namespace host::test {
namespace {

using media_player::MediaService;

SystemListener* listening = nullptr;

void hear_state(MPMusicPlayerController, NSInteger state) {
  listening->states.push_back(static_cast<int>(state));
}

void hear_volume(SBMediaController self, objc::Object) {
  listening->volumes.push_back(self.volume());
}

template <auto Function>
objc::Imp replace(objc::Class cls, const char* selector) {
  objc::Imp before = nullptr;
  MSHookMessageEx(cls, sel_registerName(selector),
                  reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call), &before);
  return before;
}

media::SongTags tags(const char* title, const char* artist, const char* album, int number) {
  media::SongTags tags;
  tags.title = title;
  tags.artist = artist;
  tags.album = album;
  tags.track_number = number;
  return tags;
}

}  // namespace

MediaPlayerTest::MediaPlayerTest() {
  foundation::set_device_root(folder_ / "device");
  quartzcore::export_quartzcore();
  uikit::export_drawing();
  media_player::export_media_player();
  media_player::export_media_controller();
  media_player::export_now_playing_controller();
  now_playing_ = objc::Ref<MPUNowPlayingController>::adopt(MPUNowPlayingController::alloc().init());
  std::filesystem::create_directories(folder_ / "music");
  using media_tests::write_song;
  write_song(song_path("a.flac"), tags("Alpha", "Xenia", "One", 1),
             media_tests::jpeg_picture(64, 32, 0xff0000), 8);
  write_song(song_path("b.flac"), tags("Bravo", "Xenia", "One", 2), {}, 20);
  write_song(song_path("c.ogg"), tags("Charlie", "Yves", "Two", 1), {}, 20);
  write_song(song_path("d.flac"), tags("Delta", "", "", 0), {}, 20);
}

MediaPlayerTest::~MediaPlayerTest() {
  MediaService::stop();
  foundation::set_device_root("");
}

void MediaPlayerTest::start() {
  MediaService::start(options());
}

media_player::MediaOptions MediaPlayerTest::options() const {
  media_player::MediaOptions options;
  options.music_folders = {folder_ / "music"};
  options.index_path = folder_ / "index.db";
  options.pace = media::PlayerPace::stepped;
  options.audio_output = "null";
  options.memory_path = folder_ / "caches/playing.plist";
  return options;
}

MPMediaItem MediaPlayerTest::item(const char* title) const {
  const auto query = objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init());
  for (const auto item : query->items().of<MPMediaItem>()) {
    if (text(item.valueForProperty(MPMediaItemPropertyTitle)) == title) return item;
  }
  return nil;
}

void MediaPlayerTest::play(const char* title) const {
  const auto query = objc::Ref<MPMediaQuery>::adopt(MPMediaQuery::alloc().init());
  player().setQueueWithQuery(query.get());
  player().setNowPlayingItem(item(title));
  player().prepareToPlay();
  player().play();
}

void MediaPlayerTest::add_song(const std::string& file, const char* title) const {
  media_tests::write_song(song_path(file), tags(title, "Zoe", "Three", 1));
}

std::string MediaPlayerTest::engine_path() const {
  return text(objc::send<NSString>(media(), "_playerPath"_sel));
}

bool MediaPlayerTest::is_engine_paused() const {
  return objc::send<BOOL>(media(), "_playerIsPaused"_sel) != NO;
}

double MediaPlayerTest::engine_position() const {
  return objc::send<double>(media(), "_playerPosition"_sel);
}

std::string MediaPlayerTest::playing(NSString property) const {
  return text(player().nowPlayingItem().valueForProperty(property));
}

std::string text(objc::Object string) {
  const char* characters = objc::cast<NSString>(string).UTF8String();
  return characters ? characters : "";
}

std::vector<std::string> titles(NSArray items) {
  std::vector<std::string> found;
  for (const auto item : items.of<MPMediaItem>())
    found.push_back(text(item.valueForProperty(MPMediaItemPropertyTitle)));
  return found;
}

SystemListener::SystemListener()
    : state_before_(
          replace<&hear_state>(MPMusicPlayerController::cls(), "_playbackStateDidChange:")),
      volume_before_(replace<&hear_volume>(SBMediaController::cls(), "_systemVolumeChanged:")) {
  listening = this;
}

SystemListener::~SystemListener() {
  const auto restore = [](objc::Class cls, objc::Sel selector, objc::Imp before) {
    method_setImplementation(class_getInstanceMethod(cls, selector), before);
  };
  restore(MPMusicPlayerController::cls(), "_playbackStateDidChange:"_sel, state_before_);
  restore(SBMediaController::cls(), "_systemVolumeChanged:"_sel, volume_before_);
  listening = nullptr;
}

}  // namespace host::test
