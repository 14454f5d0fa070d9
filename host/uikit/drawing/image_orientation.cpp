#include "host/uikit/drawing/image_orientation.h"

#include <numbers>

namespace host::uikit {
namespace {

bool is_mirrored(UIImageOrientation orientation) {
  return orientation >= UIImageOrientationUpMirrored;
}

double angle_of(UIImageOrientation orientation) {
  switch (orientation) {
    case UIImageOrientationDown:
    case UIImageOrientationDownMirrored:
      return std::numbers::pi;
    case UIImageOrientationLeft:
    case UIImageOrientationLeftMirrored:
      return -std::numbers::pi / 2;
    case UIImageOrientationRight:
    case UIImageOrientationRightMirrored:
      return std::numbers::pi / 2;
    default:
      return 0;
  }
}

}  // namespace

bool is_sideways(UIImageOrientation orientation) {
  return orientation == UIImageOrientationLeft || orientation == UIImageOrientationRight ||
         orientation == UIImageOrientationLeftMirrored ||
         orientation == UIImageOrientationRightMirrored;
}

CGRect unturned(CGRect rect, UIImageOrientation orientation) {
  if (!is_sideways(orientation)) return rect;
  const CGPoint centre = rect.centre();
  return {centre.x - rect.size.height / 2, centre.y - rect.size.width / 2, rect.size.height,
          rect.size.width};
}

CGAffineTransform turned_into(CGRect rect, UIImageOrientation orientation) {
  if (orientation == UIImageOrientationUp) return CGAffineTransformIdentity;
  const CGPoint centre = rect.centre();
  CGAffineTransform transform = CGAffineTransformMakeTranslation(centre.x, centre.y);
  transform = CGAffineTransformRotate(transform, angle_of(orientation));
  // Mirroring happens in the picture's own space, before the rotation.
  if (is_mirrored(orientation)) transform = CGAffineTransformScale(transform, -1, 1);
  return CGAffineTransformTranslate(transform, -centre.x, -centre.y);
}

}  // namespace host::uikit
