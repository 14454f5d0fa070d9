#include "host/launcher/home_screen/launch.h"

#include "host/foundation/foundation_log.h"
#include "host/foundation/loader.h"
#include "host/launcher/home_screen/music.h"
#include "host/launcher/home_screen/platform_classes.h"
#include "host/springboard/configuration.h"
#include "host/uikit/application/application.h"

namespace host::launcher {
namespace {

constexpr const char* kBundleIdentifier = "com.apple.springboard";

/// Pictures of a phone whose clock is stepped have to be the same tomorrow.
const springboard::WallClock& wall_clock(bool stepped) {
  static const springboard::FixedWallClock fixed;
  static const springboard::SystemWallClock system;
  if (stepped) return fixed;
  return system;
}

}  // namespace

void launch_home_screen(const ProcessOptions& options) {
  export_platform_classes();
  foundation::take_foundation_log();
  springboard::Configuration configuration;
  configuration.wall_clock = &wall_clock(options.stepped);
  springboard::configure(configuration);
  start_music(options);
  foundation::load_libraries(kBundleIdentifier, kHomeScreen);
  uikit::launch_application(kHomeScreen);
}

}  // namespace host::launcher
