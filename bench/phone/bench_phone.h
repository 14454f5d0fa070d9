#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/support/require.h"
#include "host/console/session.h"
#include "host/home_screen/console_phone.h"
#include "host/home_screen/window_input.h"
#include "host/process/phone_screen.h"
#include "host/quartzcore/service/layer_service.h"
#include "objc/autorelease_pool.h"

namespace bench {

/// A screen whose last frame can be read, and which may pass its frames on.
class WatchedScreen final : public host::screen::Screen {
 public:
  void show(const host::screen::Picture& picture,
            std::span<const host::screen::PixelRect> damage) override {
    picture_ = picture;
    ++frames_;
    if (shown_) shown_();
    if (next_) next_->show(picture, damage);
  }
  bool is_watched() const override { return !next_ || next_->is_watched(); }
  bool needs_everything() const override { return next_ && next_->needs_everything(); }
  std::optional<double> pixels_per_point() const override {
    return next_ ? next_->pixels_per_point() : std::nullopt;
  }
  /// Null ends it.
  void pass_on_to(host::screen::Screen* next) { next_ = next; }
  /// Sets the function that is called after each picture; empty ends it.
  void on_show(std::function<void()> shown) { shown_ = std::move(shown); }
  const host::screen::Picture& picture() const { return picture_; }
  int frames() const { return frames_; }

 private:
  host::screen::Picture picture_;
  int frames_ = 0;
  host::screen::Screen* next_ = nullptr;
  std::function<void()> shown_;
};

/// The phone's model.
inline constexpr const char* kBenchDevice = "iPhone7,2";

enum class Pace {
  kStepped,
  kReal,
  /// The screen is stepped; music plays and covers are decoded in real time.
  kSteppedScreen,
};

/// The music of a phone: folders of this machine, and a function that adds them to the new device's
/// index before anything is started. Without folders, the phone has the demo music.
struct Music {
  std::vector<std::filesystem::path> folders;
  std::function<void(const std::filesystem::path& index)> remember;
};

/// A whole phone in this process, on a new device, with the extension loaded. Only one may exist at
/// a time.
class BenchPhone {
 public:
  /// The preferences are the text of a property list, written before the extension is loaded.
  BenchPhone(Pace pace, std::string_view preferences, const Music& music = {});
  ~BenchPhone();
  BenchPhone(const BenchPhone&) = delete;
  BenchPhone& operator=(const BenchPhone&) = delete;

  void write_preferences(std::string_view text) const;
  /// Executes a line of the console; ends the program if it fails.
  std::string run(std::string_view line);
  /// The object in one of the extension's shared variables.
  objc::Object global(std::string_view name) const;
  /// Stepped: serves what is ready without moving the clock.
  void turn() { loop_.advance_to(stepped_, stepped_.now()); }
  /// Stepped: advances the clock by one frame of the screen and serves everything that is due.
  void frame();
  /// Stepped screen: serves the results of background threads until they are idle.
  void settle();
  /// Real: serves the loop for that time.
  void live(double seconds);
  void touch(host::screen::TouchPhase phase, CGPoint point) { hands_.touch(kFinger, phase, point); }

  /// The root folder of the device's files.
  const std::filesystem::path& root() const { return root_; }
  const WatchedScreen& screen() const { return screen_; }
  WatchedScreen& screen() { return screen_; }
  /// What the user of another screen does.
  host::screen::Input& input() { return input_; }
  const host::quartzcore::Compositor& compositor() const { return phone_screen_->compositor(); }
  /// A copy of the screen's pixels, row by row without gaps.
  std::vector<std::uint32_t> pixels() const;

 private:
  static constexpr int kFinger = 1;
  /// The default device's screen, in points.
  static constexpr CGSize kScreen{375, 667};

  std::filesystem::path root_;
  host::SteppedClock stepped_;
  host::RealClock real_;
  host::RunLoop loop_;
  objc::AutoreleasePool pool_;
  WatchedScreen screen_;
  std::unique_ptr<host::quartzcore::LayerService> layers_;
  host::launcher::Hands hands_{loop_, kScreen};
  host::launcher::RecordedHands recorded_hands_{hands_, loop_, host::recording::Fidelity::exact()};
  host::launcher::WindowInput input_{recorded_hands_, [] {}};
  std::unique_ptr<host::process::PhoneScreen> phone_screen_;
  std::unique_ptr<host::launcher::ConsolePhone> console_phone_;
  host::console::Globals globals_;
  std::unique_ptr<host::console::Session> session_;
};

}  // namespace bench
