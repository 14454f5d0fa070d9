#include "host/quartzcore/drawing/image_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <libyuv/convert_argb.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include "host/basics/premultiply.h"

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

// The decoder for the phone's own formats; others are found by the library, which collects some
// bytes first.
const char* usual_decoder(std::span<const unsigned char> bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (text.starts_with("\x89PNG\r\n")) return "png";
  return text.starts_with("\xff\xd8\xff") ? "jpeg" : nullptr;
}

Loader make_loader(std::span<const unsigned char> bytes) {
  const char* usual = usual_decoder(bytes);
  GdkPixbufLoader* typed = usual ? gdk_pixbuf_loader_new_with_type(usual, nullptr) : nullptr;
  Loader loader(typed ? typed : gdk_pixbuf_loader_new());
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(shrink_huge_picture), nullptr);
  return loader;
}

bool swaps_sides(GdkPixbuf* pixbuf) {
  const char* orientation = gdk_pixbuf_get_option(pixbuf, "orientation");
  return orientation && std::string_view("5678").find(*orientation) != std::string_view::npos;
}

void note_header(GdkPixbufLoader* loader, std::optional<ImageHeader>* header) {
  if (*header) return;
  GdkPixbuf* pixbuf = gdk_pixbuf_loader_get_pixbuf(loader);
  *header = {gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf),
             gdk_pixbuf_get_has_alpha(pixbuf) ? Opacity::Translucent : Opacity::Opaque};
  if (swaps_sides(pixbuf)) std::swap((*header)->width, (*header)->height);
}

}  // namespace

DecodedImage decode_image(std::span<const unsigned char> bytes) {
  const Loader loader = make_loader(bytes);
  const bool written =
      gdk_pixbuf_loader_write(loader.get(), bytes.data(), bytes.size(), nullptr) != 0;
  // A truncated picture shows the part that exists; closing only reports that it is truncated.
  gdk_pixbuf_loader_close(loader.get(), nullptr);
  GdkPixbuf* decoded = written ? gdk_pixbuf_loader_get_pixbuf(loader.get()) : nullptr;
  if (!decoded) return {};
  const Pixbuf upright(gdk_pixbuf_apply_embedded_orientation(decoded));
  return {surface_of(upright.get()),
          has_translucent_pixel(upright.get()) ? Opacity::Translucent : Opacity::Opaque};
}

std::optional<ImageHeader> read_image_header(std::span<const unsigned char> bytes) {
  constexpr std::size_t kPiece = 1024;
  const Loader loader = make_loader(bytes);
  std::optional<ImageHeader> header;
  g_signal_connect(loader.get(), "area-prepared", G_CALLBACK(note_header), &header);
  for (auto rest = bytes; !rest.empty() && !header;) {
    const auto piece = rest.first(std::min(rest.size(), kPiece));
    if (!gdk_pixbuf_loader_write(loader.get(), piece.data(), piece.size(), nullptr)) break;
    rest = rest.subspan(piece.size());
  }
  // Some formats are decoded only at their end.
  gdk_pixbuf_loader_close(loader.get(), nullptr);
  return header;
}

}  // namespace host::quartzcore
