#include "host/screen/event_descriptor.h"

#include <SDL.h>
#include <SDL_syswm.h>

#include "host/screen/desktop_library.h"

namespace host::screen {

int event_descriptor(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info)) return -1;
  switch (info.subsystem) {
#if defined(SDL_VIDEO_DRIVER_X11)
    case SDL_SYSWM_X11:
      return ask_desktop("libX11.so.6", "XConnectionNumber", info.info.x11.display, -1);
#endif
#if defined(SDL_VIDEO_DRIVER_WAYLAND)
    case SDL_SYSWM_WAYLAND:
      return ask_desktop("libwayland-client.so.0", "wl_display_get_fd", info.info.wl.display, -1);
#endif
    default:
      return -1;
  }
}

}  // namespace host::screen
