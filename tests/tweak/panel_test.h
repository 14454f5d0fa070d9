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

/// A phone with the extension, and five real songs: Alpha (with a cover), Bravo and Charlie by
/// Xenia on "One", Delta by Yves on "Two", and Echo by Yves on no album. The extension comes in as
/// it does on every phone, from the device's folder of libraries, and nothing of it is linked: its
/// state is read by name. A process can load it once, so each of these tests needs a process of its
/// own, which ctest gives it.
class PanelTest : public PhoneTest {
 public:
  explicit PanelTest(std::string_view model = kDefaultDevice);
  explicit PanelTest(const DeviceModel& model);
  ~PanelTest() override;

  // Before the launch.

  /// The preferences file: the entries of its dictionary, as XML. The drag of the icon is on, as
  /// it is without a call of this, unless they switch it.
  void write_preferences(std::string_view entries) const;
  void use_no_preferences() const;
  void use_no_songs() { has_songs_ = false; }
  /// A song besides the five; `file` is the name of its file, without the ending.
  void add_song(const std::string& file, const media::SongTags& tags,
                const std::vector<std::uint8_t>& jpeg = {}) const;
  /// A song that lies in the cloud; `entry` says what is known of it, as TOML.
  void add_cloud_song(const std::string& file, const std::string& entry) const;
  /// Starts the music and loads the extension, so that a test can listen before the launch.
  void load_extension();
  void launch();
  /// From now on the home screen's method of that name, which takes nothing, does nothing. Gives
  /// what it did before.
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
  /// What turns the icon's y into the screen's: 20 on a page, the dock's top in the dock.
  CGFloat icon_offset() const;

  // Touches.

  /// Presses the middle of the Music icon and moves just far enough for a pan to be recognised.
  void begin_drag();
  /// Drags the icon up and lets go; the panel is open when this returns.
  void open_panel();
  void tap_on(UIView view) { tap(middle_of(view)); }
  CGPoint middle_of(UIView view) const;
  CGPoint finger() const { return finger_place_; }
  /// Presses there and keeps the finger down.
  void hold(CGPoint point);
  /// Moves in one step, a frame after the last one.
  void move_by(CGFloat x, CGFloat y);
  void move_finger(CGPoint point);

  /// Steps frame by frame until `condition` holds and gives the seconds that it took; -1 when it
  /// never did.
  double seconds_until(const std::function<bool()>& condition, double limit = 6);

  // The music.

  SBMediaController media() const { return SBMediaController::sharedInstance(); }
  /// Starts a song the way the system's own Music application does.
  void play(const char* title);
  void play(MPMediaItem item);
  /// The file that the playing engine holds, without its ending; empty when it holds none.
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
