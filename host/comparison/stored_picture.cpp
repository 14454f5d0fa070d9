#include "host/comparison/stored_picture.h"

#include <cairo.h>

#include <filesystem>

namespace host::comparison {

void StoredPicture::Destroy::operator()(_cairo_surface* surface) const {
  cairo_surface_destroy(surface);
}

std::optional<StoredPicture> StoredPicture::read(const std::string& file, std::string& problem) {
  std::error_code error;
  const bool is_file = std::filesystem::is_regular_file(file, error);
  if (!is_file) {
    problem = file + ": " + (error ? error.message() : "it is not a file");
    return std::nullopt;
  }
  StoredPicture made(cairo_image_surface_create_from_png(file.c_str()));
  const cairo_status_t status = cairo_surface_status(made.surface_.get());
  const auto format = cairo_image_surface_get_format(made.surface_.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    problem = file + ": " + cairo_status_to_string(status);
  } else if (format != CAIRO_FORMAT_RGB24 && format != CAIRO_FORMAT_ARGB32) {
    problem = file + ": its pixels have more than 8 bits a colour";
  } else {
    return made;
  }
  return std::nullopt;
}

screen::Picture StoredPicture::picture() const {
  cairo_surface_t* surface = surface_.get();
  return {cairo_image_surface_get_data(surface), cairo_image_surface_get_width(surface),
          cairo_image_surface_get_height(surface), cairo_image_surface_get_stride(surface)};
}

}  // namespace host::comparison
