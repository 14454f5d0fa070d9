#pragma once

#include <cstdint>
#include <memory>

#include "host/quartzcore/pixels/surface.h"
#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

struct CGImageObject : objc::Bound<CGImageObject, "CGImage", NSObject> {};

enum class Opacity { Translucent, Opaque };
/// The order in which the data provider returns a pixel's bytes. Decoded files are red first, as
/// from the platform's decoder; drawings are blue first.
enum class ByteOrder { BlueFirst, RedFirst };

/// Returns a number that no other picture of the process has.
std::uint64_t next_image_serial();

/// Pixels that are produced when first needed, and may be released and produced again. Main thread
/// only, unless a source says more.
class PixelSource {
 public:
  virtual ~PixelSource() = default;

  /// Returns the pixels and produces them if necessary. Null when this fails.
  virtual Surface pixels() = 0;
  /// The same for a frame of the screen, without blocking: null while they are being produced.
  virtual Surface pixels_for_frame() = 0;
  /// True while a frame would have to do without pixels that are produced in the background.
  virtual bool is_awaited() const { return false; }
  /// Opaque only if the pixels are available to a frame drawn now.
  virtual Opacity opacity() const = 0;
  /// Changes when pixels have become available that an earlier frame had to do without.
  virtual std::uint64_t revision() const = 0;

  /// All images of one source are the same picture.
  std::uint64_t serial() const { return serial_; }

 private:
  const std::uint64_t serial_ = next_image_serial();
};

/// What a CGImageRef points to: immutable premultiplied ARGB32 pixels, or a promise of them. It is
/// also a runtime object.
class Image : public objc::Implementation<Image, CGImageObject> {
 public:
  explicit Image(CGImageObject owner) : Implementation(owner) {}

  /// Never null: promised pixels that cannot be produced are transparent.
  Surface surface() const;
  /// Null while promised pixels are being produced.
  Surface surface_for_frame() const { return source_ ? source_->pixels_for_frame() : surface_; }
  /// True if the pixels come from a source, which may not have them yet.
  bool is_promised() const { return source_ != nullptr; }
  bool is_awaited() const { return source_ && source_->is_awaited(); }
  bool is_opaque() const { return (source_ ? source_->opacity() : opacity_) == Opacity::Opaque; }
  std::uint64_t revision() const { return source_ ? source_->revision() : 0; }
  /// Tells pictures of the process apart; caches use it as their key.
  std::uint64_t serial() const { return source_ ? source_->serial() : serial_; }
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
  const std::uint64_t serial_ = next_image_serial();
};

/// Returns a new image (+1) of these pixels, which must not be drawn on afterwards.
CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order = ByteOrder::BlueFirst);

/// Returns a new image (+1) whose pixels, `width` × `height`, are requested from the source when
/// they are needed.
CGImageRef promise_image(int width, int height, std::shared_ptr<PixelSource> source,
                         ByteOrder order = ByteOrder::BlueFirst);

inline objc::Object object_of(CGImageRef image) {
  return objc::Object(reinterpret_cast<objc::Id>(image));
}
/// Returns the image behind a reference or an object; null when it is not an image.
const Image* image_of(CGImageRef image);
const Image* image_of(objc::Object object);

void export_image();

}  // namespace host::quartzcore
