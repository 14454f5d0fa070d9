#include "host/quartzcore/color.h"

#include <functional>

#include "host/runtime/exported.h"

namespace host::quartzcore {

BOOL Color::is_equal(objc::Object other) const {
  return is_color(other) && objc::state_of<Color>(other).rgba == rgba;
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

Rgba rgba_of(CGColorRef color) {
  return color ? objc::state_of<Color>(object_of(color)).rgba : Rgba{};
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
  return left == right || (left && right && rgba_of(left) == rgba_of(right));
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
