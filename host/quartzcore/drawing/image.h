#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "host/quartzcore/pixels/surface.h"
#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

struct CGImageObject : objc::Bound<CGImageObject, "CGImage", NSObject> {};

enum class Opacity { Translucent, Opaque };
/// The order in which the data provider hands out a pixel's bytes. Decoded files are red first, as
/// the platform's decoder makes them; drawings are blue first.
enum class ByteOrder { BlueFirst, RedFirst };

/// Pixels that are made when they are first needed, and may be let go and made again. Main thread
/// only.
class PixelSource {
 public:
  virtual ~PixelSource() = default;

  /// The pixels, made now if they are not there. Null when they cannot be made.
  virtual Surface pixels() = 0;
  /// The same for a frame of the screen, which waits for nothing: null while they are on their way.
  virtual Surface pixels_for_frame() = 0;
  /// Opaque only when a frame drawn now would have the pixels.
  virtual Opacity opacity() const = 0;
  /// Another number when pixels have arrived that a frame had to do without.
  virtual std::uint64_t revision() const = 0;
};

/// What a CGImageRef points to: immutable premultiplied ARGB32 pixels, or the promise of them, an
/// object of the runtime.
class Image : public objc::Implementation<Image, CGImageObject> {
 public:
  explicit Image(CGImageObject owner);

  /// Never null: promised pixels that cannot be made are transparent.
  Surface surface() const;
  /// Null while promised pixels are on their way.
  Surface surface_for_frame() const { return source_ ? source_->pixels_for_frame() : surface_; }
  bool is_opaque() const { return (source_ ? source_->opacity() : opacity_) == Opacity::Opaque; }
  std::uint64_t revision() const { return source_ ? source_->revision() : 0; }
  /// Never used twice in a process: what caches are keyed by.
  std::uint64_t serial() const { return serial_; }
  int width() const { return width_; }
  int height() const { return height_; }
  ByteOrder byte_order() const { return byte_order_; }

 private:
  friend CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order);
  friend CGImageRef promise_image(int width, int height, std::shared_ptr<PixelSource> source,
                                  ByteOrder order);

  Surface surface_;
  std::shared_ptr<PixelSource> source_;
  int width_ = 0;
  int height_ = 0;
  Opacity opacity_ = Opacity::Translucent;
  ByteOrder byte_order_ = ByteOrder::BlueFirst;
  std::uint64_t serial_;
};

/// A new image (+1) of these pixels, which nobody draws on any more.
CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order = ByteOrder::BlueFirst);

/// A new image (+1) whose pixels, `width` × `height`, are asked of the source when they are needed.
CGImageRef promise_image(int width, int height, std::shared_ptr<PixelSource> source,
                         ByteOrder order = ByteOrder::BlueFirst);

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
