#pragma once

#include "platform/QuartzCore/CATransform3D.h"

namespace host::quartzcore {

/// A transform within the plane, decomposed: scale, then shear, then rotation, then translation.
struct TransformParts {
  double scale_x = 1, scale_y = 1;
  double shear = 0;
  double rotation = 0;
  double x = 0, y = 0;
};

TransformParts parts_of(const CATransform3D& transform);
CATransform3D transform_of(const TransformParts& parts);

/// Interpolates part by part, rotating the shorter way round. Transforms that leave the plane are
/// interpolated element by element.
CATransform3D interpolate_transforms(const CATransform3D& from, const CATransform3D& to,
                                     double fraction);

}  // namespace host::quartzcore
