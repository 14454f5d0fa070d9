#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <fstream>
#include <string>
#include <string_view>

namespace host::test {

/// Writes a grey picture of `width` by `height` pixels that says that it was taken with the camera
/// on its side.
inline void write_sideways_jpeg(const std::string& path, int width, int height) {
  using std::string_view_literals::operator""sv;
  constexpr auto kTurnedRight =
      "\xff\xe1\x00\x22"
      "Exif\0\0"
      "MM\0\x2a\0\0\0\x08"
      "\0\x01"
      "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
      "\0\0\0\0"sv;
  constexpr std::size_t kStart = 2;
  GdkPixbuf* pixbuf = gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width, height);
  gdk_pixbuf_fill(pixbuf, 0x808080ff);
  gchar* bytes = nullptr;
  gsize size = 0;
  gdk_pixbuf_save_to_buffer(pixbuf, &bytes, &size, "jpeg", nullptr, nullptr);
  std::ofstream(path, std::ios::binary)
      .write(bytes, kStart)
      .write(kTurnedRight.data(), kTurnedRight.size())
      .write(bytes + kStart, static_cast<std::streamsize>(size - kStart));
  g_free(bytes);
  g_object_unref(pixbuf);
}

}  // namespace host::test
