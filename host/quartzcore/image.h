#pragma once

#include <cstdint>
#include <span>

#include "host/quartzcore/surface.h"
#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

struct CGImageObject : objc::Bound<CGImageObject, "CGImage", NSObject> {};

enum class Opacity { Translucent, Opaque };
/// The order in which the data provider hands out a pixel's bytes. Decoded files are red first, as
/// the platform's decoder makes them; drawings are blue first.
enum class ByteOrder { BlueFirst, RedFirst };

/// What a CGImageRef points to: immutable premultiplied ARGB32 pixels, an object of the runtime.
class Image : public objc::Implementation<Image, CGImageObject> {
 public:
  explicit Image(CGImageObject owner);

  const Surface& surface() const { return surface_; }
  bool is_opaque() const { return opacity_ == Opacity::Opaque; }
  /// Never used twice in a process: what caches are keyed by.
  std::uint64_t serial() const { return serial_; }
  int width() const { return width_of(surface_); }
  int height() const { return height_of(surface_); }
  ByteOrder byte_order() const { return byte_order_; }

 private:
  friend CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order);

  Surface surface_;
  Opacity opacity_ = Opacity::Translucent;
  ByteOrder byte_order_ = ByteOrder::BlueFirst;
  std::uint64_t serial_;
};

/// A new image (+1) of these pixels, which nobody draws on any more.
CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order = ByteOrder::BlueFirst);

/// Decodes PNG, JPEG and whatever else gdk-pixbuf reads (+1); null for what is no picture.
/// Pictures above `kLargestSide` are shrunk while they are decoded.
CGImageRef decode_image_file(const char* path);
CGImageRef decode_image_bytes(std::span<const unsigned char> bytes);
inline constexpr int kLargestSide = 4096;

inline objc::Object object_of(CGImageRef image) {
  return objc::Object(reinterpret_cast<objc::Id>(image));
}
/// The image behind a reference or an object; null when it is none.
const Image* image_of(CGImageRef image);
const Image* image_of(objc::Object object);

void export_image();

}  // namespace host::quartzcore
