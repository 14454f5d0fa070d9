#include "host/screen/event_descriptor.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <dlfcn.h>

namespace host::screen {
namespace {

// SDL has loaded the desktop's library; its function is looked up by name, because linking would
// require the libraries of both desktops.
int ask(const char* library, const char* function, void* display) {
  void* loaded = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
  if (!loaded) return -1;
  const auto descriptor_of = reinterpret_cast<int (*)(void*)>(dlsym(loaded, function));
  const int descriptor = descriptor_of ? descriptor_of(display) : -1;
  dlclose(loaded);
  return descriptor;
}

}  // namespace

int event_descriptor(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info)) return -1;
  switch (info.subsystem) {
#if defined(SDL_VIDEO_DRIVER_X11)
    case SDL_SYSWM_X11:
      return ask("libX11.so.6", "XConnectionNumber", info.info.x11.display);
#endif
#if defined(SDL_VIDEO_DRIVER_WAYLAND)
    case SDL_SYSWM_WAYLAND:
      return ask("libwayland-client.so.0", "wl_display_get_fd", info.info.wl.display);
#endif
    default:
      return -1;
  }
}

}  // namespace host::screen
