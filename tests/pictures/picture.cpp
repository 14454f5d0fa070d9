#include "picture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <memory>

namespace sonavue::test {

namespace {

constexpr int opaque = 255;

Pixel pixel_at(const GdkPixbuf* pixbuf, int x, int y) {
  const int channels = gdk_pixbuf_get_n_channels(pixbuf);
  const guint8* bytes = gdk_pixbuf_read_pixels(pixbuf) +
                        static_cast<std::size_t>(y) * gdk_pixbuf_get_rowstride(pixbuf) +
                        static_cast<std::size_t>(x) * channels;
  const std::uint8_t alpha = channels == 4 ? bytes[3] : opaque;
  return {bytes[0], bytes[1], bytes[2], alpha};
}

}  // namespace

double Picture::visible_share() const {
  const auto visible = std::count_if(pixels.begin(), pixels.end(),
                                     [](const Pixel& pixel) { return pixel.alpha > 0; });
  return static_cast<double>(visible) / static_cast<double>(pixels.size());
}

bool Picture::is_opaque() const {
  return std::all_of(pixels.begin(), pixels.end(),
                     [](const Pixel& pixel) { return pixel.alpha == opaque; });
}

std::optional<Picture> rendered_picture(const std::string& path) {
  const std::string file = std::string(SONAVUE_RENDERED_PICTURES) + "/" + path;
  const std::unique_ptr<GdkPixbuf, decltype(&g_object_unref)> pixbuf(
      gdk_pixbuf_new_from_file(file.c_str(), nullptr), g_object_unref);
  if (!pixbuf) {
    return std::nullopt;
  }
  Picture picture{gdk_pixbuf_get_width(pixbuf.get()), gdk_pixbuf_get_height(pixbuf.get()), {}};
  picture.pixels.reserve(static_cast<std::size_t>(picture.width) * picture.height);
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      picture.pixels.push_back(pixel_at(pixbuf.get(), x, y));
    }
  }
  return picture;
}

}  // namespace sonavue::test
