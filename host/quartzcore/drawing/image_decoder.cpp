#include <gdk-pixbuf/gdk-pixbuf.h>
#include <libyuv/convert_argb.h>

#include <algorithm>
#include <memory>

#include "host/basics/premultiply.h"
#include "host/quartzcore/drawing/image.h"

namespace host::quartzcore {
namespace {

struct Unreference {
  void operator()(void* object) const { g_object_unref(object); }
};
using Pixbuf = std::unique_ptr<GdkPixbuf, Unreference>;
using Loader = std::unique_ptr<GdkPixbufLoader, Unreference>;

void shrink_huge_picture(GdkPixbufLoader* loader, int width, int height, void*) {
  const int longer = std::max(width, height);
  if (longer <= kLargestSide) return;
  const double factor = static_cast<double>(kLargestSide) / longer;
  gdk_pixbuf_loader_set_size(loader, std::max(1, static_cast<int>(width * factor)),
                             std::max(1, static_cast<int>(height * factor)));
}

Surface surface_of(const GdkPixbuf* pixbuf) {
  const int width = gdk_pixbuf_get_width(pixbuf);
  const int height = gdk_pixbuf_get_height(pixbuf);
  const Surface surface = reused({}, width, height);
  unsigned char* to = cairo_image_surface_get_data(surface.get());
  const int to_stride = cairo_image_surface_get_stride(surface.get());
  const unsigned char* from = gdk_pixbuf_read_pixels(pixbuf);
  const int from_stride = gdk_pixbuf_get_rowstride(pixbuf);
  if (gdk_pixbuf_get_has_alpha(pixbuf)) {
    for (int y = 0; y < height; ++y, from += from_stride, to += to_stride)
      premultiply_row(from, reinterpret_cast<std::uint32_t*>(to), width);
  } else {
    libyuv::RAWToARGB(from, from_stride, to, to_stride, width, height);
  }
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

bool has_translucent_pixel(const GdkPixbuf* pixbuf) {
  if (!gdk_pixbuf_get_has_alpha(pixbuf)) return false;
  const unsigned char* row = gdk_pixbuf_read_pixels(pixbuf);
  const int width = gdk_pixbuf_get_width(pixbuf);
  for (int y = 0; y < gdk_pixbuf_get_height(pixbuf); ++y) {
    for (int x = 0; x < width; ++x) {
      if (row[x * 4 + 3] != 255) return true;
    }
    row += gdk_pixbuf_get_rowstride(pixbuf);
  }
  return false;
}

CGImageRef image_from(GdkPixbuf* decoded) {
  if (!decoded) return nullptr;
  const Pixbuf upright(gdk_pixbuf_apply_embedded_orientation(decoded));
  const Opacity opacity =
      has_translucent_pixel(upright.get()) ? Opacity::Translucent : Opacity::Opaque;
  return make_image(surface_of(upright.get()), opacity, ByteOrder::RedFirst);
}

CGImageRef finish(const Loader& loader, bool written) {
  // A truncated picture shows the part that exists; closing only reports that it is truncated.
  gdk_pixbuf_loader_close(loader.get(), nullptr);
  return written ? image_from(gdk_pixbuf_loader_get_pixbuf(loader.get())) : nullptr;
}

Loader make_loader() {
  Loader loader(gdk_pixbuf_loader_new());
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(shrink_huge_picture), nullptr);
  return loader;
}

}  // namespace

CGImageRef decode_image_bytes(std::span<const unsigned char> bytes) {
  const Loader loader = make_loader();
  const bool written =
      gdk_pixbuf_loader_write(loader.get(), bytes.data(), bytes.size(), nullptr) != 0;
  return finish(loader, written);
}

CGImageRef decode_image_file(const char* path) {
  char* contents = nullptr;
  gsize length = 0;
  if (!g_file_get_contents(path, &contents, &length, nullptr)) return nullptr;
  const std::unique_ptr<char, decltype(&g_free)> owned(contents, g_free);
  return decode_image_bytes({reinterpret_cast<const unsigned char*>(contents), length});
}

}  // namespace host::quartzcore
