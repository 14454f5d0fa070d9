#include "host/quartzcore/drawing/color.h"

#include <cstring>
#include <functional>

#include "host/quartzcore/pixels/area_average.h"
#include "host/runtime/exported.h"

namespace host::quartzcore {
namespace {

constexpr double kFullByte = 255;

/// Returns the mean of all pixels.
Rgba mean_of(const Image& image) {
  const Surface one = area_average(image.surface(), 1, 1);
  const unsigned char* bytes = cairo_image_surface_get_data(one.get());
  std::uint32_t pixel = 0;
  if (bytes) std::memcpy(&pixel, bytes, sizeof pixel);
  const double alpha = (pixel >> 24) / kFullByte;
  if (alpha <= 0) return {};
  const auto part = [&](int shift) { return (pixel >> shift & 0xff) / kFullByte / alpha; };
  return {part(16), part(8), part(0), alpha};
}

}  // namespace

BOOL Color::is_equal(objc::Object other) const {
  return is_color(other) && objc::state_of<Color>(other).rgba == rgba &&
         objc::state_of<Color>(other).pattern == pattern;
}

NSUInteger Color::hash() const {
  const std::hash<double> part;
  return part(rgba.red) ^ part(rgba.green) << 1 ^ part(rgba.blue) << 2 ^ part(rgba.alpha) << 3;
}

CGColorRef make_color(const Rgba& rgba) {
  const CGColorObject made = CGColorObject::alloc().init();
  if (made) objc::state_of<Color>(made).rgba = rgba;
  return reinterpret_cast<CGColorRef>(made.id());
}

CGColorRef make_pattern_color(CGImageRef image, double scale) {
  const Image* picture = image_of(image);
  if (!picture) return nullptr;
  const CGColorRef made = make_color(mean_of(*picture));
  objc::state_of<Color>(object_of(made)).pattern = {
      objc::Ref<CGImageObject>::retain(objc::cast<CGImageObject>(object_of(image))), scale};
  return made;
}

Pattern pattern_of(CGColorRef color) {
  return color ? objc::state_of<Color>(object_of(color)).pattern : Pattern{};
}

void set_source(cairo_t* drawing, const Pattern& pattern) {
  const Image* picture = image_of(pattern.image.get());
  if (!picture) return;
  // Such pictures are small: there is no point in drawing without them until they are ready.
  cairo_set_source_surface(drawing, picture->surface().get(), 0, 0);
  cairo_pattern_t* const tiles = cairo_get_source(drawing);
  cairo_pattern_set_extend(tiles, CAIRO_EXTEND_REPEAT);
  cairo_matrix_t to_pixels;
  cairo_matrix_init_scale(&to_pixels, pattern.scale, pattern.scale);
  cairo_pattern_set_matrix(tiles, &to_pixels);
}

Rgba rgba_of(CGColorRef color) {
  return color ? objc::state_of<Color>(object_of(color)).rgba : Rgba{};
}

KeptColor::KeptColor(const Rgba& rgba)
    : object_(
          objc::Ref<CGColorObject>::adopt(objc::cast<CGColorObject>(object_of(make_color(rgba))))) {
}

bool is_color(objc::Object object) {
  return object && objc::cast<NSObject>(object).isKindOfClass(CGColorObject::cls());
}

void export_color() {
  objc::ClassBuilder("CGColor", "NSObject")
      .state<Color>()
      .method<&Color::is_equal>("isEqual:")
      .method<&Color::hash>("hash")
      .finish();
}

}  // namespace host::quartzcore

using host::quartzcore::Color;
using host::quartzcore::make_color;
using host::quartzcore::object_of;
using host::quartzcore::pattern_of;
using host::quartzcore::rgba_of;

SONAVUE_EXPORTED CGColorRef CGColorCreateGenericRGB(CGFloat red, CGFloat green, CGFloat blue,
                                                    CGFloat alpha) {
  return make_color({red, green, blue, alpha});
}
SONAVUE_EXPORTED CGColorRef CGColorCreateGenericGray(CGFloat white, CGFloat alpha) {
  return make_color({white, white, white, alpha});
}
SONAVUE_EXPORTED CGColorRef CGColorCreateCopyWithAlpha(CGColorRef color, CGFloat alpha) {
  if (!color) return nullptr;
  auto rgba = rgba_of(color);
  rgba.alpha = alpha;
  return make_color(rgba);
}
SONAVUE_EXPORTED CGColorRef CGColorRetain(CGColorRef color) {
  objc::send<objc::Id>(object_of(color), "retain"_sel);
  return color;
}
SONAVUE_EXPORTED void CGColorRelease(CGColorRef color) {
  objc::send<>(object_of(color), "release"_sel);
}
SONAVUE_EXPORTED bool CGColorEqualToColor(CGColorRef left, CGColorRef right) {
  return left == right || (left && right && rgba_of(left) == rgba_of(right) &&
                           pattern_of(left) == pattern_of(right));
}
SONAVUE_EXPORTED std::size_t CGColorGetNumberOfComponents(CGColorRef color) {
  return color ? 4 : 0;
}
SONAVUE_EXPORTED const CGFloat* CGColorGetComponents(CGColorRef color) {
  return color ? &objc::state_of<Color>(object_of(color)).rgba.red : nullptr;
}
SONAVUE_EXPORTED CGFloat CGColorGetAlpha(CGColorRef color) {
  return rgba_of(color).alpha;
}
