#include "host/browser/phone/body_picture.h"

#include <cairo-svg.h>

#include "host/screen/phone_body_drawing.h"

namespace host::browser {
namespace {

cairo_status_t append(void* text, const unsigned char* bytes, unsigned size) {
  static_cast<std::string*>(text)->append(reinterpret_cast<const char*>(bytes), size);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::string picture_of(const screen::PhoneBody& body) {
  std::string made;
  cairo_surface_t* const surface =
      cairo_svg_surface_create_for_stream(&append, &made, body.size().width, body.size().height);
  cairo_t* const drawing = cairo_create(surface);
  screen::draw_body(drawing, body, [](screen::Button) { return false; });
  cairo_destroy(drawing);
  cairo_surface_finish(surface);
  cairo_surface_destroy(surface);
  return made;
}

}  // namespace host::browser
