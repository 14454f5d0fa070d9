#include "host/quartzcore/drawing/image.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "host/runtime/exported.h"
#include "platform/Foundation/NSData.h"

namespace host::quartzcore {

std::uint64_t next_image_serial() {
  static std::atomic<std::uint64_t> last = 0;
  return ++last;
}

CGImageRef make_image(Surface surface, Opacity opacity, ByteOrder order) {
  const CGImageObject made = CGImageObject::alloc().init();
  if (!made) return nullptr;
  auto& image = objc::state_of<Image>(made);
  cairo_surface_flush(surface.get());
  image.width_ = width_of(surface);
  image.height_ = height_of(surface);
  image.surface_ = std::move(surface);
  image.opacity_ = opacity;
  image.byte_order_ = order;
  return reinterpret_cast<CGImageRef>(made.id());
}

CGImageRef promise_image(int width, int height, std::shared_ptr<PixelSource> source,
                         ByteOrder order) {
  const CGImageObject made = CGImageObject::alloc().init();
  if (!made) return nullptr;
  auto& image = objc::state_of<Image>(made);
  image.source_ = std::move(source);
  image.width_ = width;
  image.height_ = height;
  image.byte_order_ = order;
  return reinterpret_cast<CGImageRef>(made.id());
}

Surface Image::surface() const {
  if (!source_) return surface_;
  Surface made = source_->pixels();
  return made ? made : make_surface(width_, height_);
}

const Image* image_of(CGImageRef image) {
  return image ? &objc::state_of<Image>(object_of(image)) : nullptr;
}

const Image* image_of(objc::Object object) {
  if (!object || !objc::cast<NSObject>(object).isKindOfClass(CGImageObject::cls())) return nullptr;
  return &objc::state_of<Image>(object);
}

void export_image() {
  objc::ClassBuilder("CGImage", "NSObject").state<Image>().finish();
}

namespace {

CGImageRef part_of(const Image& image, CGRect rect) {
  const int left = std::max(0, static_cast<int>(rect.min_x()));
  const int top = std::max(0, static_cast<int>(rect.min_y()));
  const int right = std::min(image.width(), static_cast<int>(rect.max_x()));
  const int bottom = std::min(image.height(), static_cast<int>(rect.max_y()));
  if (right <= left || bottom <= top) return nullptr;
  const Surface part = make_surface(right - left, bottom - top);
  const Drawing drawing = draw_on(part);
  cairo_set_operator(drawing.get(), CAIRO_OPERATOR_SOURCE);
  const Surface whole = image.surface();
  cairo_set_source_surface(drawing.get(), whole.get(), -left, -top);
  cairo_paint(drawing.get());
  return make_image(part, image.is_opaque() ? Opacity::Opaque : Opacity::Translucent,
                    image.byte_order());
}

void swap_red_and_blue(unsigned char* bytes, std::size_t length) {
  for (std::size_t i = 0; i + 3 < length; i += 4)
    std::swap(bytes[i], bytes[i + 2]);
}

}  // namespace
}  // namespace host::quartzcore

using host::quartzcore::image_of;
using host::quartzcore::object_of;

SONAVUE_EXPORTED CGImageRef CGImageRetain(CGImageRef image) {
  objc::send<objc::Id>(object_of(image), "retain"_sel);
  return image;
}
SONAVUE_EXPORTED void CGImageRelease(CGImageRef image) {
  objc::send<>(object_of(image), "release"_sel);
}
SONAVUE_EXPORTED std::size_t CGImageGetWidth(CGImageRef image) {
  return image ? static_cast<std::size_t>(image_of(image)->width()) : 0;
}
SONAVUE_EXPORTED std::size_t CGImageGetHeight(CGImageRef image) {
  return image ? static_cast<std::size_t>(image_of(image)->height()) : 0;
}
SONAVUE_EXPORTED std::size_t CGImageGetBytesPerRow(CGImageRef image) {
  if (!image) return 0;
  const int stride = cairo_format_stride_for_width(CAIRO_FORMAT_ARGB32, image_of(image)->width());
  return static_cast<std::size_t>(stride);
}
SONAVUE_EXPORTED std::size_t CGImageGetBitsPerPixel(CGImageRef image) {
  return image ? 32 : 0;
}
SONAVUE_EXPORTED std::size_t CGImageGetBitsPerComponent(CGImageRef image) {
  return image ? 8 : 0;
}
SONAVUE_EXPORTED CGImageRef CGImageCreateWithImageInRect(CGImageRef image, CGRect rect) {
  return image ? host::quartzcore::part_of(*image_of(image), rect) : nullptr;
}

// The image is its own data provider: both have the same lifetime.
SONAVUE_EXPORTED CGDataProviderRef CGImageGetDataProvider(CGImageRef image) {
  return reinterpret_cast<CGDataProviderRef>(image);
}
SONAVUE_EXPORTED CFDataRef CGDataProviderCopyData(CGDataProviderRef provider) {
  const auto* image = image_of(reinterpret_cast<CGImageRef>(provider));
  if (!image) return nullptr;
  const host::quartzcore::Surface pixels = image->surface();
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(pixels.get()));
  const std::size_t length = stride * static_cast<std::size_t>(image->height());
  auto* bytes = static_cast<unsigned char*>(std::malloc(length));
  std::memcpy(bytes, cairo_image_surface_get_data(pixels.get()), length);
  if (image->byte_order() == host::quartzcore::ByteOrder::RedFirst)
    host::quartzcore::swap_red_and_blue(bytes, length);
  const auto data = objc::send<NSData>(NSData::alloc(), "initWithBytesNoCopy:length:"_sel,
                                       static_cast<void*>(bytes), NSUInteger{length});
  return reinterpret_cast<CFDataRef>(data.id());
}
SONAVUE_EXPORTED const unsigned char* CFDataGetBytePtr(CFDataRef data) {
  const objc::Object object(reinterpret_cast<objc::Id>(const_cast<__CFData*>(data)));
  return static_cast<const unsigned char*>(objc::send<const void*>(object, "bytes"_sel));
}
SONAVUE_EXPORTED NSInteger CFDataGetLength(CFDataRef data) {
  const objc::Object object(reinterpret_cast<objc::Id>(const_cast<__CFData*>(data)));
  return static_cast<NSInteger>(objc::send<NSUInteger>(object, "length"_sel));
}
SONAVUE_EXPORTED void CFRelease(const void* object) {
  objc::send<>(objc::Object(static_cast<objc::Id>(const_cast<void*>(object))), "release"_sel);
}
SONAVUE_EXPORTED const void* CFRetain(const void* object) {
  objc::send<objc::Id>(objc::Object(static_cast<objc::Id>(const_cast<void*>(object))),
                       "retain"_sel);
  return object;
}
