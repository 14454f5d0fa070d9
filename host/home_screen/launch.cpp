#include "host/home_screen/launch.h"

#include "host/activator/service/service.h"
#include "host/foundation/bundles.h"
#include "host/foundation/foundation_log.h"
#include "host/foundation/loader.h"
#include "host/home_screen/first_music.h"
#include "host/home_screen/music.h"
#include "host/home_screen/phone_mode.h"
#include "host/home_screen/safe_mode_notice.h"
#include "host/home_screen/supervised_processes.h"
#include "host/process/device_images.h"
#include "host/runtime/hang_watch.h"
#include "host/runtime/heap.h"
#include "host/runtime/log.h"
#include "host/runtime/patience.h"
#include "host/runtime/user_warnings.h"
#include "host/social/delivery/configuration.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/home/wallpaper_ahead.h"
#include "host/springboard/status_bar/status_bar.h"
#include "host/uikit/application/application.h"

namespace host::launcher {
namespace {

constexpr const char* kBundleIdentifier = "com.apple.springboard";
// In seconds.
constexpr double kLongestLaunch = 10;

/// Pictures of a phone with a stepped clock must not depend on the time of day.
const springboard::WallClock& wall_clock(bool stepped) {
  static const springboard::FixedWallClock fixed;
  static const springboard::SystemWallClock system;
  if (stepped) return fixed;
  return system;
}

/// A phone without a window does not use the desktop's services, even if there is a desktop.
void configure_social(bool headless) {
  social::Configuration configuration;
  configuration.desktop = headless ? social::Desktop::Absent : social::desktop_of_environment();
  configuration.share_target = social::default_share_target_file();
  social::configure(configuration);
}

/// Must be started before the extensions are loaded, because they register with it.
void start_gesture_service() {
  static const PhoneMode mode;
  activator::Service::restart(activator::Service::Role::HomeScreen, &mode);
}

/// Never destroyed, since the loop is not there at the end of the process.
void show_user_warnings() {
  [[maybe_unused]] static const auto* const warnings =
      new UserWarnings(RunLoop::main(), &springboard::show_status_notice);
}

/// The loop does not turn yet, so the supervisor cannot notice an extension that hangs here.
void launch_application_watched() {
  HangWatch watch(patience_of(kLongestLaunch), [](const std::string& name) {
    spdlog::warn("{} is still starting after {} seconds: an extension may keep it from that", name,
                 kLongestLaunch * patience_scale());
  });
  watch.during(kHomeScreen, [] { uikit::launch_application(kHomeScreen); });
}

/// Returns false when the phone was switched off before it had its music.
bool launch_music(const ProcessOptions& options) {
  const auto screen = options.headless ? FirstMusic::Screen::kNone : FirstMusic::Screen::kShown;
  const auto first = std::make_shared<FirstMusic>(RunLoop::main(), screen);
  const auto start = start_music(options, [first = std::weak_ptr(first)](const auto& progress) {
    if (const auto waiting = first.lock()) waiting->take(progress);
  });
  return start == MusicStart::kReady || first->wait();
}

}  // namespace

bool launch_home_screen(const ProcessOptions& options) {
  give_large_blocks_back();
  process::start_home_screen();
  foundation::set_main_bundle("/System/Library/CoreServices/SpringBoard.app");
  foundation::take_foundation_log();
  springboard::Configuration configuration;
  configuration.wall_clock = &wall_clock(options.stepped);
  configuration.has_stepped_clock = options.stepped;
  static SupervisedProcesses processes;
  configuration.process_keeper = &processes;
  configuration.library_number = &music_library_number;
  springboard::configure(configuration);
  const springboard::WallpaperAhead wallpaper;
  configure_social(options.headless);
  start_gesture_service();
  if (!options.headless) show_user_warnings();
  if (!launch_music(options)) return false;
  if (!options.safe_mode)
    foundation::load_libraries(kBundleIdentifier, kHomeScreen, options.extensions);
  launch_application_watched();
  if (options.safe_mode) show_safe_mode_notice();
  return true;
}

}  // namespace host::launcher
