#include "host/media/sound_libraries.h"

#include <dlfcn.h>
#include <fmt/core.h>

#include <cstdlib>

#include "host/basics/program_identity.h"

namespace host::media {
namespace {

using ErrorHandler = void (*)(const char*, int, const char*, int, const char*, ...);

void ignore_error(const char*, int, const char*, int, const char*, ...) {}

}  // namespace

void prepare_sound_libraries() {
  constexpr int keep_the_users_choice = 0;
  ::setenv("PIPEWIRE_DEBUG", "0", keep_the_users_choice);
  ::setenv("PULSE_PROP_application.icon_name", kDesktopEntry, keep_the_users_choice);
  ::setenv("PIPEWIRE_PROPS", fmt::format("{{ application.icon-name = {} }}", kDesktopEntry).c_str(),
           keep_the_users_choice);
  // The engine brings the library with it, or was built without it.
  using SetHandler = int (*)(ErrorHandler);
  const auto set_handler =
      reinterpret_cast<SetHandler>(::dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler"));
  if (set_handler != nullptr) set_handler(&ignore_error);
}

}  // namespace host::media
