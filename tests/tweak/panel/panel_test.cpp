#include "tests/tweak/panel_test.h"

#include <dlfcn.h>

#include <cstring>
#include <fstream>

#include "host/foundation/device_paths.h"
#include "host/foundation/foundation_log.h"
#include "host/foundation/loader.h"
#include "host/launcher/device_root.h"
#include "host/media_player/media_service.h"
#include "host/process/device_images.h"
#include "platform/UIKit/UIWindow.h"

namespace host::test {
namespace {

using media_player::MediaService;

struct Song {
  const char* title;
  const char* artist;
  const char* album;
};

constexpr Song kSongs[] = {
    {"Alpha", "Xenia", "One"}, {"Bravo", "Xenia", "One"}, {"Charlie", "Xenia", "One"},
    {"Delta", "Yves", "Two"},  {"Echo", "Yves", ""},
};
constexpr const char* kSongWithCover = "Alpha";
constexpr std::uint32_t kCoverColor = 0xff0000;

constexpr CGFloat kBeyondPanThreshold = 12;

MPMediaItem item_named(const char* title) {
  const auto query = MPMediaQuery::alloc().init().autorelease();
  for (const auto item : query.items().of<MPMediaItem>()) {
    if (text(item.valueForProperty(MPMediaItemPropertyTitle)) == title) return item;
  }
  return nil;
}

}  // namespace

std::string text(objc::Object string) {
  const char* characters = objc::cast<NSString>(string).UTF8String();
  return characters ? characters : "";
}

PanelTest::PanelTest(std::string_view model) : PanelTest(*device_model(model)) {}

PanelTest::PanelTest(const DeviceModel& model) : PhoneTest(model) {
  foundation::take_foundation_log();
  process::start_home_screen();
  foundation::set_device_root(device.string());
  const launcher::StagingSource staging{SONAVUE_STAGING, {}};
  auto problem = launcher::prepare_device_root(device);
  if (!problem) problem = launcher::stage(staging, device, {});
  if (problem) throw std::runtime_error(*problem);
  write_preferences("");
}

PanelTest::~PanelTest() {
  MediaService::stop();
  end();
  foundation::set_device_root("");
}

void PanelTest::write_preferences(std::string_view entries) const {
  const bool chooses = entries.find("<key>enable</key>") != entries.npos;
  std::ofstream(preferences_file())
      << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
      << (chooses ? "" : "<key>enable</key><true/>") << entries << "</dict></plist>\n";
}

objc::Imp PanelTest::silence(objc::Sel selector) {
  const auto do_nothing = [](objc::Id, objc::Sel) {};
  return method_setImplementation(
      class_getInstanceMethod(SpringBoard::cls(), selector),
      reinterpret_cast<objc::Imp>(static_cast<void (*)(objc::Id, objc::Sel)>(do_nothing)));
}

void PanelTest::use_no_preferences() const {
  std::filesystem::remove(preferences_file());
}

void PanelTest::add_song(const std::string& file, const media::SongTags& tags,
                         const std::vector<std::uint8_t>& jpeg) const {
  media_tests::write_song(songs_ / (file + ".flac"), tags, jpeg, kSongSeconds);
}

void PanelTest::add_cloud_song(const std::string& file, const std::string& entry) const {
  media_tests::write_bytes(songs_ / (file + ".cloud.toml"), entry);
}

void PanelTest::write_songs() const {
  for (const Song& song : kSongs) {
    media::SongTags tags;
    tags.title = song.title;
    tags.artist = song.artist;
    tags.album = song.album;
    const bool has_cover = song.title == std::string_view(kSongWithCover);
    media_tests::write_song(
        songs_ / (song.title + std::string(".flac")), tags,
        has_cover ? media_tests::jpeg_picture(64, 64, kCoverColor) : std::vector<std::uint8_t>(),
        kSongSeconds);
  }
}

void PanelTest::start_music() const {
  if (has_songs_) write_songs();
  media_player::MediaOptions options;
  options.music_folders = {songs_.path()};
  options.index_path = (device / "library.sqlite").string();
  options.pace = media::PlayerPace::stepped;
  options.audio_output = "null";
  MediaService::start(std::move(options));
}

void PanelTest::load_extension() {
  ASSERT_TRUE(foundation::loaded_libraries().empty())
      << "each of these tests needs its own process; run them with ctest";
  start_music();
  const auto loaded = foundation::load_libraries("com.apple.springboard", "SpringBoard");
  ASSERT_EQ(loaded.size(), 1u);
  globals_ = static_cast<const console::ExportedGlobal*>(
      dlsym(loaded.front().handle, console::Globals::kTableSymbol));
  ASSERT_TRUE(globals_);
}

void PanelTest::launch() {
  if (!globals_) load_extension();
  if (HasFatalFailure()) return;
  PhoneTest::launch();
}

void* PanelTest::address_of(const char* name, const char* encoding) const {
  for (auto entry = globals_; entry && entry->name; ++entry) {
    if (std::strcmp(entry->name, name) != 0) continue;
    if (!objc::same_encoding(entry->encoding, encoding))
      throw std::logic_error(std::string(name) + " is of another type: " + entry->encoding);
    return entry->address;
  }
  throw std::logic_error(std::string("there is no global ") + name);
}

CGFloat PanelTest::icon_offset() const {
  if (!music_icon().isInDock()) return 20;
  return screen().height - music_icon().superview().frame().size.height;
}

CGPoint PanelTest::middle_of(UIView view) const {
  const CGPoint in_window = view.convertPointToView(view.bounds().centre(), nil);
  return view.window().convertPointToWindow(in_window, nil);
}

void PanelTest::hold(CGPoint point) {
  finger_place_ = point;
  press(point);
}

void PanelTest::move_finger(CGPoint point) {
  advance(RunLoop::kFrame);
  finger_place_ = point;
  move(point);
}

void PanelTest::move_by(CGFloat x, CGFloat y) {
  move_finger({finger_place_.x + x, finger_place_.y + y});
}

void PanelTest::begin_drag() {
  hold(on_screen(music_icon()));
  move_by(0, -kBeyondPanThreshold);
}

void PanelTest::open_panel() {
  begin_drag();
  for (int step = 0; step < 10; ++step)
    move_by(0, -20);
  lift();
  settle();
  ASSERT_TRUE(is("isShow"));
}

double PanelTest::seconds_until(const std::function<bool()>& condition, double limit) {
  const double start = clock.now();
  while (!condition()) {
    if (clock.now() > start + limit) return -1;
    advance(RunLoop::kFrame);
  }
  return clock.now() - start;
}

void PanelTest::play(const char* title) {
  play(item_named(title));
}

void PanelTest::play(MPMediaItem item) {
  const auto player = MPMusicPlayerController::iPodMusicPlayer();
  player.setQueueWithQuery(global<MPMediaQuery>("fullList"));
  player.setNowPlayingItem(item);
  player.prepareToPlay();
  player.play();
  // Long enough for the refresh, which runs every second.
  advance(1.1);
}

std::string PanelTest::sounding() const {
  const std::string path = text(objc::send<NSString>(media(), "_playerPath"_sel));
  return std::filesystem::path(path).stem().string();
}

bool PanelTest::is_engine_paused() const {
  return objc::send<BOOL>(media(), "_playerIsPaused"_sel) != NO;
}

std::vector<std::string> PanelTest::titles(const char* items) const {
  std::vector<std::string> found;
  for (const auto item : global<NSMutableArray>(items).of<MPMediaItem>())
    found.push_back(text(item.valueForProperty(MPMediaItemPropertyTitle)));
  return found;
}

}  // namespace host::test
