#include "host/media/mpv_library.h"

#include <dlfcn.h>

#include <optional>
#include <string>

#include "host/media/log.h"

namespace host::media {
namespace {

static_assert(MPV_CLIENT_API_VERSION >> 16 == 2,
              "the name of the library has its interface's number");
constexpr const char* library_name = "libmpv.so.2";

template <class Function>
bool find(Function& function, const char* name) {
  // Not only in the library: a program may define its own.
  function = reinterpret_cast<Function>(::dlsym(RTLD_DEFAULT, name));
  return function != nullptr;
}

std::optional<MpvLibrary> load() {
  // For all, as if it were linked: the libraries that it brings are looked for by their functions.
  if (::dlopen(library_name, RTLD_NOW | RTLD_GLOBAL) == nullptr) {
    log_warning(std::string{"music cannot be played: "} + ::dlerror());
    return std::nullopt;
  }
  MpvLibrary found{};
  const bool is_whole =
      find(found.create, "mpv_create") && find(found.initialize, "mpv_initialize") &&
      find(found.terminate_destroy, "mpv_terminate_destroy") &&
      find(found.set_wakeup_callback, "mpv_set_wakeup_callback") &&
      find(found.set_option_string, "mpv_set_option_string") &&
      find(found.set_property_string, "mpv_set_property_string") &&
      find(found.get_property, "mpv_get_property") &&
      find(found.get_property_string, "mpv_get_property_string") &&
      find(found.command, "mpv_command") && find(found.command_ret, "mpv_command_ret") &&
      find(found.wait_event, "mpv_wait_event") && find(found.error_string, "mpv_error_string") &&
      find(found.free, "mpv_free") && find(found.free_node_contents, "mpv_free_node_contents");
  return is_whole ? std::optional{found} : std::nullopt;
}

}  // namespace

const MpvLibrary* mpv() {
  static const std::optional<MpvLibrary> library = load();
  return library ? &*library : nullptr;
}

}  // namespace host::media
