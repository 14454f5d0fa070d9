#include "host/media/picture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <libyuv/convert_argb.h>
#include <libyuv/convert_from_argb.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <memory>
#include <string_view>
#include <utility>

#include "host/basics/premultiply.h"
#include "host/media/jpeg_limits.h"
#include "host/media/plain_file.h"
#include "host/media/reading_marks.h"

namespace host::media {
namespace {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using LoaderRef = std::unique_ptr<GdkPixbufLoader, Unref>;
using PixbufRef = std::unique_ptr<GdkPixbuf, Unref>;

constexpr char cover_quality[] = "88";
constexpr std::size_t header_piece_bytes = 16 << 10;
constexpr std::size_t most_header_bytes = 4 << 20;

// Only these two decoders are used, chosen by the picture's first bytes: a picture inside a song is
// untrusted input, and most of a desktop's decoders were not made for that. Not even these for
// every JPEG.
const char* decoder_for(std::span<const std::uint8_t> bytes) {
  constexpr std::uint8_t jpeg[] = {0xff, 0xd8, 0xff};
  constexpr std::uint8_t png[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
  auto starts_with = [bytes](std::span<const std::uint8_t> magic) {
    return bytes.size() > magic.size() && std::ranges::equal(bytes.first(magic.size()), magic);
  };
  if (starts_with(jpeg)) return is_quick_jpeg(bytes) ? "jpeg" : nullptr;
  if (starts_with(png)) return "png";
  return nullptr;
}

struct Decoding {
  int longest_side;
  bool scales_itself;  // The JPEG decoder skips what a smaller picture does not need.
  bool has_begun = false;
};

void choose_size(GdkPixbufLoader* loader, int width, int height, gpointer data) {
  const auto& decoding = *static_cast<const Decoding*>(data);
  if (static_cast<std::int64_t>(width) * height > most_picture_pixels) {
    // A size of zero makes both decoders stop before they allocate.
    gdk_pixbuf_loader_set_size(loader, 0, 0);
    return;
  }
  if (!decoding.scales_itself) return;
  const auto [wanted_width, wanted_height] = fitted_size(width, height, decoding.longest_side);
  gdk_pixbuf_loader_set_size(loader, wanted_width, wanted_height);
}

// A truncated picture leaves its last rows untouched; without this they would show uninitialised
// memory.
void clear_rows(GdkPixbufLoader* loader, gpointer data) {
  if (std::exchange(static_cast<Decoding*>(data)->has_begun, true)) return;
  gdk_pixbuf_fill(gdk_pixbuf_loader_get_pixbuf(loader), 0);
}

void premultiply_into(const GdkPixbuf* pixbuf, Picture& picture) {
  const guint8* row = gdk_pixbuf_read_pixels(pixbuf);
  std::uint32_t* to = picture.pixels.data();
  for (int y = 0; y < picture.height; ++y) {
    premultiply_row(row, to, picture.width);
    row += gdk_pixbuf_get_rowstride(pixbuf);
    to += picture.width;
  }
}

Picture picture_from(const GdkPixbuf* pixbuf) {
  Picture picture{gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf), {}};
  picture.pixels.resize(static_cast<std::size_t>(picture.width) *
                        static_cast<std::size_t>(picture.height));
  if (gdk_pixbuf_get_has_alpha(pixbuf)) {
    premultiply_into(pixbuf, picture);
  } else {
    libyuv::RAWToARGB(gdk_pixbuf_read_pixels(pixbuf), gdk_pixbuf_get_rowstride(pixbuf),
                      reinterpret_cast<std::uint8_t*>(picture.pixels.data()), picture.width * 4,
                      picture.width, picture.height);
  }
  return picture;
}

void note_size(GdkPixbufLoader* loader, int width, int height, gpointer data) {
  if (static_cast<std::int64_t>(width) * height <= most_picture_pixels) {
    *static_cast<PictureSize*>(data) = {width, height};
  }
  gdk_pixbuf_loader_set_size(loader, 0, 0);
}

// A PNG has transparency if its colour type says so, or a chunk before the pixels.
bool is_opaque_png(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t first_chunk = 8;
  constexpr std::size_t kind_of_pixels = 25;
  constexpr std::uint8_t has_alpha = 4;
  if (bytes.size() <= kind_of_pixels || (bytes[kind_of_pixels] & has_alpha) != 0) return false;
  for (std::size_t at = first_chunk; at + 8 <= bytes.size();) {
    const std::string_view name{reinterpret_cast<const char*>(bytes.data() + at + 4), 4};
    if (name == "IDAT") return true;
    if (name == "tRNS") return false;
    const std::size_t length = std::size_t{bytes[at]} << 24 | std::size_t{bytes[at + 1]} << 16 |
                               std::size_t{bytes[at + 2]} << 8 | bytes[at + 3];
    at += length + 12;
  }
  return false;
}

std::vector<std::uint8_t> jpeg_from(GdkPixbuf* pixbuf) {
  gchar* buffer = nullptr;
  gsize size = 0;
  if (!gdk_pixbuf_save_to_buffer(pixbuf, &buffer, &size, "jpeg", nullptr, "quality", cover_quality,
                                 nullptr)) {
    return {};
  }
  const std::unique_ptr<gchar, decltype(&g_free)> owned{buffer, &g_free};
  return {buffer, buffer + size};
}

}  // namespace

PictureSize fitted_size(int width, int height, int longest_side) {
  const double scale = std::min(1.0, static_cast<double>(longest_side) / std::max(width, height));
  return {std::max(1, static_cast<int>(std::lround(width * scale))),
          std::max(1, static_cast<int>(std::lround(height * scale)))};
}

PictureHeader read_picture_header(std::span<const std::uint8_t> bytes) {
  const char* decoder = decoder_for(bytes);
  if (decoder == nullptr) return {};
  const LoaderRef loader{gdk_pixbuf_loader_new_with_type(decoder, nullptr)};
  if (!loader) return {};
  PictureSize size;
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(note_size), &size);
  for (auto rest = bytes; !rest.empty() && size.width == 0;) {
    const auto piece = rest.first(std::min(rest.size(), header_piece_bytes));
    if (!gdk_pixbuf_loader_write(loader.get(), piece.data(), piece.size(), nullptr)) break;
    rest = rest.subspan(piece.size());
  }
  // The decoder was told to stop; the error that it reports says nothing about the picture.
  gdk_pixbuf_loader_close(loader.get(), nullptr);
  const bool is_jpeg = decoder == std::string_view{"jpeg"};
  return {size.width, size.height, size.width > 0 && (is_jpeg || is_opaque_png(bytes))};
}

PictureHeader read_picture_file_header(const std::string& path) {
  if (!reason_not_to_open(path).empty()) return {};
  const ReadingMark mark{Reading::cover, path};
  if (!mark.may_read()) return {};
  std::ifstream file{path, std::ios::binary};
  std::vector<std::uint8_t> bytes;
  // A photograph may have a preview and a colour profile before its size.
  for (std::size_t wanted = header_piece_bytes; wanted <= most_header_bytes; wanted *= 4) {
    const std::size_t before = bytes.size();
    bytes.resize(wanted);
    file.read(reinterpret_cast<char*>(bytes.data() + before),
              static_cast<std::streamsize>(wanted - before));
    bytes.resize(before + static_cast<std::size_t>(file.gcount()));
    const PictureHeader header = read_picture_header(bytes);
    if (header.is_usable() || bytes.size() < wanted) return header;
  }
  return {};
}

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
  const auto [wanted_width, wanted_height] = fitted_size(width, height, longest_side);
  if (wanted_width == width && wanted_height == height) return picture_from(pixbuf);
  const PixbufRef scaled{
      gdk_pixbuf_scale_simple(pixbuf, wanted_width, wanted_height, GDK_INTERP_BILINEAR)};
  if (!scaled) return std::nullopt;
  return picture_from(scaled.get());
}

std::vector<std::uint8_t> jpeg_of(const Picture& picture) {
  const PixbufRef pixbuf{
      gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, picture.width, picture.height)};
  if (!pixbuf) return {};
  libyuv::ARGBToRAW(reinterpret_cast<const std::uint8_t*>(picture.pixels.data()), picture.width * 4,
                    gdk_pixbuf_get_pixels(pixbuf.get()), gdk_pixbuf_get_rowstride(pixbuf.get()),
                    picture.width, picture.height);
  return jpeg_from(pixbuf.get());
}

std::vector<std::uint8_t> jpeg_from_file(const std::string& path, int longest_side) {
  const PixbufRef pixbuf{
      gdk_pixbuf_new_from_file_at_scale(path.c_str(), longest_side, longest_side, TRUE, nullptr)};
  return pixbuf ? jpeg_from(pixbuf.get()) : std::vector<std::uint8_t>{};
}

}  // namespace host::media
