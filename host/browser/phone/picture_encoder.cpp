#include "host/browser/phone/picture_encoder.h"

#include <png.h>
#include <turbojpeg.h>

#include <csetjmp>
#include <cstddef>

namespace host::browser {
namespace {

// Of a hundred. Text is sent again without loss when it rests.
constexpr int kQuality = 80;
// The picture waits for no better compression than this.
constexpr int kFastest = 1;

const unsigned char* first_pixel(const screen::Picture& picture, const screen::PixelRect& part) {
  return picture.pixels + static_cast<std::ptrdiff_t>(part.y) * picture.stride +
         static_cast<std::ptrdiff_t>(part.x) * 4;
}

void append(png_structp writer, png_bytep bytes, std::size_t size) {
  static_cast<std::string*>(png_get_io_ptr(writer))
      ->append(reinterpret_cast<const char*>(bytes), size);
}

/// The screen has nothing behind it: the fourth byte of each pixel is left out.
void write_rows(png_structp writer, png_infop info, const screen::Picture& picture,
                const screen::PixelRect& part) {
  png_set_IHDR(writer, info, static_cast<png_uint_32>(part.width),
               static_cast<png_uint_32>(part.height), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_compression_level(writer, kFastest);
  png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
  png_write_info(writer, info);
  png_set_bgr(writer);
  png_set_filler(writer, 0, PNG_FILLER_AFTER);
  const unsigned char* row = first_pixel(picture, part);
  for (int y = 0; y < part.height; ++y, row += picture.stride)
    png_write_row(writer, row);
  png_write_end(writer, nullptr);
}

}  // namespace

PictureEncoder::PictureEncoder() : compressor_(tjInitCompress()) {}

PictureEncoder::~PictureEncoder() {
  if (compressor_) tjDestroy(compressor_);
}

std::string PictureEncoder::jpeg(const screen::Picture& picture,
                                 const screen::PixelRect& part) const {
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  const int failed =
      tjCompress2(compressor_, first_pixel(picture, part), part.width, picture.stride, part.height,
                  TJPF_BGRX, &bytes, &size, TJSAMP_420, kQuality, TJFLAG_FASTDCT);
  std::string made;
  if (!failed) made.assign(reinterpret_cast<const char*>(bytes), size);
  tjFree(bytes);
  return made;
}

std::string png(const screen::Picture& picture, const screen::PixelRect& part) {
  std::string made;
  png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = writer ? png_create_info_struct(writer) : nullptr;
  // The library returns here when it fails.
  if (!info || setjmp(png_jmpbuf(writer))) {
    png_destroy_write_struct(&writer, &info);
    return {};
  }
  png_set_write_fn(writer, &made, &append, nullptr);
  write_rows(writer, info, picture, part);
  png_destroy_write_struct(&writer, &info);
  return made;
}

}  // namespace host::browser
