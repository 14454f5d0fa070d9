#include <SDL.h>
#include <cairo.h>

#include "host/screen/window.h"

namespace host::screen {

void Window::set_icon(const std::string& file) {
  cairo_surface_t* picture = cairo_image_surface_create_from_png(file.c_str());
  if (cairo_surface_status(picture) == CAIRO_STATUS_SUCCESS) {
    SDL_Surface* icon = SDL_CreateRGBSurfaceWithFormatFrom(
        cairo_image_surface_get_data(picture), cairo_image_surface_get_width(picture),
        cairo_image_surface_get_height(picture), 32, cairo_image_surface_get_stride(picture),
        SDL_PIXELFORMAT_ARGB8888);
    SDL_SetWindowIcon(window_.get(), icon);
    SDL_FreeSurface(icon);
  }
  cairo_surface_destroy(picture);
}

}  // namespace host::screen
