#include "host/media/picture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>
#include <utility>

namespace host::media {
namespace {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using LoaderRef = std::unique_ptr<GdkPixbufLoader, Unref>;
using PixbufRef = std::unique_ptr<GdkPixbuf, Unref>;

constexpr char cover_quality[] = "88";

// The bytes choose between two decoders and no others: a picture inside a song is somebody else's
// input, and most of the decoders of a desktop were never meant for that.
const char* decoder_for(std::span<const std::uint8_t> bytes) {
  constexpr std::uint8_t jpeg[] = {0xff, 0xd8, 0xff};
  constexpr std::uint8_t png[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
  auto starts_with = [bytes](std::span<const std::uint8_t> magic) {
    return bytes.size() > magic.size() && std::ranges::equal(bytes.first(magic.size()), magic);
  };
  if (starts_with(jpeg)) return "jpeg";
  if (starts_with(png)) return "png";
  return nullptr;
}

// The size with the longer side at most `longest_side`, never larger than the given one.
std::pair<int, int> fitted(int width, int height, int longest_side) {
  const double scale = std::min(1.0, static_cast<double>(longest_side) / std::max(width, height));
  return {std::max(1, static_cast<int>(std::lround(width * scale))),
          std::max(1, static_cast<int>(std::lround(height * scale)))};
}

struct Decoding {
  int longest_side;
  bool scales_itself;  // The JPEG decoder skips what a smaller picture does not need.
  bool has_begun = false;
};

void choose_size(GdkPixbufLoader* loader, int width, int height, gpointer data) {
  const auto& decoding = *static_cast<const Decoding*>(data);
  if (static_cast<std::int64_t>(width) * height > most_picture_pixels) {
    // Both decoders take a size of zero as the order to give up, before they allocate.
    gdk_pixbuf_loader_set_size(loader, 0, 0);
    return;
  }
  if (!decoding.scales_itself) return;
  const auto [wanted_width, wanted_height] = fitted(width, height, decoding.longest_side);
  gdk_pixbuf_loader_set_size(loader, wanted_width, wanted_height);
}

// A picture that breaks off leaves its last rows as they were; without this they would show
// whatever the memory held before.
void clear_rows(GdkPixbufLoader* loader, gpointer data) {
  if (std::exchange(static_cast<Decoding*>(data)->has_begun, true)) return;
  gdk_pixbuf_fill(gdk_pixbuf_loader_get_pixbuf(loader), 0);
}

std::uint32_t premultiplied(std::uint32_t red, std::uint32_t green, std::uint32_t blue,
                            std::uint32_t alpha) {
  auto scaled = [alpha](std::uint32_t channel) { return (channel * alpha + 127) / 255; };
  return alpha << 24 | scaled(red) << 16 | scaled(green) << 8 | scaled(blue);
}

Picture picture_from(const GdkPixbuf* pixbuf) {
  Picture picture{gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf), {}};
  const int channels = gdk_pixbuf_get_n_channels(pixbuf);
  const std::size_t stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(pixbuf));
  const guint8* rows = gdk_pixbuf_read_pixels(pixbuf);
  picture.pixels.reserve(static_cast<std::size_t>(picture.width) * picture.height);
  for (int y = 0; y < picture.height; ++y) {
    const guint8* pixel = rows + stride * static_cast<std::size_t>(y);
    for (int x = 0; x < picture.width; ++x, pixel += channels) {
      const std::uint32_t alpha = channels == 4 ? pixel[3] : 255;
      picture.pixels.push_back(premultiplied(pixel[0], pixel[1], pixel[2], alpha));
    }
  }
  return picture;
}

}  // namespace

std::optional<Picture> decode_picture(std::span<const std::uint8_t> bytes, int longest_side) {
  const char* decoder = decoder_for(bytes);
  if (decoder == nullptr || longest_side < 1) return std::nullopt;
  const LoaderRef loader{gdk_pixbuf_loader_new_with_type(decoder, nullptr)};
  if (!loader) return std::nullopt;
  Decoding decoding{longest_side, decoder == std::string_view{"jpeg"}};
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(choose_size), &decoding);
  g_signal_connect(loader.get(), "area-prepared", G_CALLBACK(clear_rows), &decoding);
  const bool written = gdk_pixbuf_loader_write(loader.get(), bytes.data(), bytes.size(), nullptr);
  const bool closed = gdk_pixbuf_loader_close(loader.get(), nullptr);
  const GdkPixbuf* pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!written || !closed || pixbuf == nullptr) return std::nullopt;

  const int width = gdk_pixbuf_get_width(pixbuf);
  const int height = gdk_pixbuf_get_height(pixbuf);
  const auto [wanted_width, wanted_height] = fitted(width, height, longest_side);
  if (wanted_width == width && wanted_height == height) return picture_from(pixbuf);
  const PixbufRef scaled{
      gdk_pixbuf_scale_simple(pixbuf, wanted_width, wanted_height, GDK_INTERP_BILINEAR)};
  if (!scaled) return std::nullopt;
  return picture_from(scaled.get());
}

std::vector<std::uint8_t> jpeg_from_file(const std::string& path, int longest_side) {
  const PixbufRef pixbuf{
      gdk_pixbuf_new_from_file_at_scale(path.c_str(), longest_side, longest_side, TRUE, nullptr)};
  if (!pixbuf) return {};
  gchar* buffer = nullptr;
  gsize size = 0;
  if (!gdk_pixbuf_save_to_buffer(pixbuf.get(), &buffer, &size, "jpeg", nullptr, "quality",
                                 cover_quality, nullptr)) {
    return {};
  }
  const std::unique_ptr<gchar, decltype(&g_free)> owned{buffer, &g_free};
  return {buffer, buffer + size};
}

}  // namespace host::media
