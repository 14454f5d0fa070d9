#include <cstdlib>
#include <string>
#include <string_view>

#include "host/foundation/device_paths.h"
#include "host/foundation/exports.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSValue.h"
#include "settings/preferences.h"
#include "tweak/preferences/poll.h"

// `preferences_writer DEVICE pane|home` writes the device's preferences file as fast as it can,
// like the pane or like the home screen, until it is killed.

namespace {

constexpr int kKeys = 7;

void change_as_pane(int turn) {
  const std::string key = "setting-" + std::to_string(turn % kKeys);
  sonavue::store(NSNumber::numberWithInteger(turn),
                 sonavue::PreferenceKey(NSString::stringWithUTF8String(key.c_str())));
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return EXIT_FAILURE;
  host::foundation::export_foundation();
  host::foundation::set_device_root(arguments[1]);
  const bool is_pane = std::string_view(arguments[2]) == "pane";
  for (int turn = 0;; ++turn) {
    const objc::AutoreleasePool pool;
    if (is_pane)
      change_as_pane(turn);
    else
      sonavue::changePreferences(nil);
  }
}
