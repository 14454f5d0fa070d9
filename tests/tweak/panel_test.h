#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/console/globals.h"
#include "host/media/song_tags.h"
#include "objc/encoding.h"
#include "platform/MediaPlayer/MPMediaItem.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/SpringBoard/SBMediaController.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIImageView.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/phone_fixture.h"
#include "tests/tweak/geometry.h"

namespace host::test {

/// The duration of every song, in seconds.
inline constexpr double kSongSeconds = 60;

/// A phone with the extension and five real songs: Alpha (with a cover), Bravo and Charlie by
/// Xenia on "One", Delta by Yves on "Two", and Echo by Yves on no album. The extension is loaded as
/// on every phone, from the device's folder of libraries, and is not linked: tests access its state
/// by name. A process can load it only once, so each of these tests needs its own process. ctest
/// provides that.
class PanelTest : public PhoneTest {
 public:
  explicit PanelTest(std::string_view model = kDefaultDevice);
  explicit PanelTest(const DeviceModel& model);
  ~PanelTest() override;

  // Before the launch.

  /// Writes the preferences file; `entries` are those of its dictionary, as XML. The drag is on by
  /// default, as without this call, unless the entries switch it off.
  void write_preferences(std::string_view entries) const;
  void use_no_preferences() const;
  void use_no_songs() { has_songs_ = false; }
  /// Adds a song to the five; `file` is its file name without the extension.
  void add_song(const std::string& file, const media::SongTags& tags,
                const std::vector<std::uint8_t>& jpeg = {}) const;
  /// Adds a song that is only in the cloud; `entry` describes it, as TOML.
  void add_cloud_song(const std::string& file, const std::string& entry) const;
  /// Starts the media services and loads the extension, so that a test can install spies before the
  /// launch.
  void load_extension();
  void launch();
  /// Replaces the home screen's method of that name, which takes no arguments, with a no-op.
  /// Returns the previous implementation.
  static objc::Imp silence(objc::Sel selector);

  // The extension's state.

  template <class T>
  T& global(const char* name) const {
    return *static_cast<T*>(address_of(name, objc::Encode<T>::text.c_str()));
  }
  bool is(const char* flag) const { return global<BOOL>(flag) != NO; }
  UIView view(const char* name) const { return global<UIView>(name); }
  CGRect frame(const char* name) const { return view(name).frame(); }
  CGFloat alpha(const char* name) const { return view(name).alpha(); }
  SBIconView music_icon() const { return global<SBIconView>("musicIcon"); }
  CGSize screen() const { return global<CGRect>("rect").size; }
  /// The offset from the icon's y to the screen's: 20 on a page, the dock's top in the dock.
  CGFloat icon_offset() const;

  // Touches.

  /// Presses the centre of the Music icon and moves just far enough for a pan to be recognised.
  void begin_drag();
  /// Drags the icon up and releases it; the panel is open when this returns.
  void open_panel();
  void tap_on(UIView view) { tap(middle_of(view)); }
  CGPoint middle_of(UIView view) const;
  CGPoint finger() const { return finger_place_; }
  /// Presses at that point and keeps the finger down.
  void hold(CGPoint point);
  /// Moves in one step, one frame after the previous one.
  void move_by(CGFloat x, CGFloat y);
  void move_finger(CGPoint point);

  /// Steps frame by frame until `condition` holds and returns how many seconds it took, or -1 if it
  /// never did.
  double seconds_until(const std::function<bool()>& condition, double limit = 6);

  // The music.

  SBMediaController media() const { return SBMediaController::sharedInstance(); }
  /// Starts a song as the system's own Music application does.
  void play(const char* title);
  void play(MPMediaItem item);
  /// The name of the file that is loaded in the playback engine, without its extension; empty if
  /// none is.
  std::string sounding() const;
  bool is_engine_paused() const;
  std::vector<std::string> titles(const char* items) const;

  std::filesystem::path preferences_file() const {
    return device / "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
  }

 private:
  void* address_of(const char* name, const char* encoding) const;
  void write_songs() const;
  void start_music() const;

  media_tests::TemporaryFolder songs_;
  bool has_songs_ = true;
  const console::ExportedGlobal* globals_ = nullptr;
  CGPoint finger_place_;
};

std::string text(objc::Object string);

}  // namespace host::test
