#include <cairo.h>

#include <memory>

#include "host/screen/screen.h"

namespace host::screen {

std::optional<std::string> write_png(const Picture& picture, const std::string& file) {
  // Cairo requires writable pixels, but writing a file only reads them. There is nothing behind the
  // screen, so its transparency is ignored.
  const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
      cairo_image_surface_create_for_data(const_cast<unsigned char*>(picture.pixels),
                                          CAIRO_FORMAT_RGB24, picture.width, picture.height,
                                          picture.stride),
      &cairo_surface_destroy);
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), file.c_str());
  if (status == CAIRO_STATUS_SUCCESS) return std::nullopt;
  return file + ": " + cairo_status_to_string(status);
}

}  // namespace host::screen
