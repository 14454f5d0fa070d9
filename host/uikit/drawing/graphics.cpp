#include "host/uikit/drawing/graphics.h"

#include <vector>

#include "host/quartzcore/drawing/context.h"
#include "host/runtime/device_model.h"
#include "host/runtime/exported.h"

namespace {

struct Drawing {
  CGContextRef context = nullptr;
  /// Pixels per point of an image context; 0 for a context that was pushed.
  double image_scale = 0;
};

std::vector<Drawing>& drawings() {
  static std::vector<Drawing> stack;
  return stack;
}

void pop_drawing() {
  CGContextRelease(drawings().back().context);
  drawings().pop_back();
}

bool in_image_context() {
  return !drawings().empty() && drawings().back().image_scale > 0;
}

}  // namespace

SONAVUE_EXPORTED CGContextRef UIGraphicsGetCurrentContext() {
  return drawings().empty() ? nullptr : drawings().back().context;
}

SONAVUE_EXPORTED void UIGraphicsPushContext(CGContextRef context) {
  drawings().push_back({CGContextRetain(context)});
}

SONAVUE_EXPORTED void UIGraphicsPopContext() {
  if (!drawings().empty() && !in_image_context()) pop_drawing();
}

SONAVUE_EXPORTED void UIGraphicsBeginImageContext(CGSize size) {
  UIGraphicsBeginImageContextWithOptions(size, NO, 1);
}

SONAVUE_EXPORTED void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque,
                                                             CGFloat scale) {
  using host::quartzcore::Opacity;
  const double pixels = scale > 0 ? scale : host::current_device().scale;
  const Opacity opacity = opaque ? Opacity::Opaque : Opacity::Translucent;
  drawings().push_back({host::quartzcore::make_bitmap_context(size, pixels, opacity), pixels});
}

SONAVUE_EXPORTED void UIGraphicsEndImageContext() {
  if (in_image_context()) pop_drawing();
}

SONAVUE_EXPORTED void UIRectFill(CGRect rect) {
  if (const CGContextRef context = UIGraphicsGetCurrentContext()) CGContextFillRect(context, rect);
}

namespace objc::c {

SONAVUE_EXPORTED objc::Id UIGraphicsGetImageFromCurrentImageContext() {
  if (!in_image_context()) return nullptr;
  const CGImageRef pixels = CGBitmapContextCreateImage(drawings().back().context);
  const UIImage image =
      UIImage::imageWithCGImage(pixels, drawings().back().image_scale, UIImageOrientationUp);
  CGImageRelease(pixels);
  return image.id();
}

}  // namespace objc::c

namespace host::uikit {

cairo_t* current_drawing() {
  return quartzcore::cairo_of(UIGraphicsGetCurrentContext());
}

}  // namespace host::uikit
