#include "host/screen/desktop_scale.h"

#include <SDL.h>
#include <SDL_syswm.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>

#include "host/screen/desktop_library.h"

namespace host::screen {
namespace {

constexpr std::string_view kResolution = "Xft.dpi:";
constexpr double kUnscaled = 96;
constexpr double kLargestScale = 4;

double number_in(std::string_view text) {
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

[[maybe_unused]] double scale_of_display(void* display) {
  const char* resources =
      ask_desktop<const char*>("libX11.so.6", "XResourceManagerString", display, nullptr);
  return resources ? scale_of_resources(resources) : 0;
}

}  // namespace

double scale_of_resources(std::string_view resources) {
  while (!resources.empty()) {
    const auto end = std::min(resources.find('\n'), resources.size());
    std::string_view line = resources.substr(0, end);
    resources.remove_prefix(std::min(end + 1, resources.size()));
    if (!line.starts_with(kResolution)) continue;
    line.remove_prefix(kResolution.size());
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return std::clamp(number_in(line) / kUnscaled, 0.0, kLargestScale);
  }
  return 0;
}

double desktop_scale() {
#if defined(SDL_VIDEO_DRIVER_X11)
  // Only a window knows the connection to its display.
  SDL_Window* const probe = SDL_CreateWindow("", 0, 0, 1, 1, SDL_WINDOW_HIDDEN);
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  const bool is_x11 = probe && SDL_GetWindowWMInfo(probe, &info) && info.subsystem == SDL_SYSWM_X11;
  double scale = is_x11 ? scale_of_display(info.info.x11.display) : 0;
  if (probe) SDL_DestroyWindow(probe);
  const char* const forced = std::getenv("GDK_SCALE");
  if (is_x11 && scale == 0 && forced) scale = number_in(forced);
  return std::clamp(scale, 1.0, kLargestScale);
#else
  return 1;
#endif
}

}  // namespace host::screen
