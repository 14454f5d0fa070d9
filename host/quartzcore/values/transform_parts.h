#pragma once

#include "platform/QuartzCore/CATransform3D.h"

namespace host::quartzcore {

/// A transform within the plane, taken apart: first scale, then shear, then turn, then move.
struct TransformParts {
  double scale_x = 1, scale_y = 1;
  double shear = 0;
  double rotation = 0;
  double x = 0, y = 0;
};

TransformParts parts_of(const CATransform3D& transform);
CATransform3D transform_of(const TransformParts& parts);

/// Part by part, turning the shorter way round; number by number for what leaves the plane.
CATransform3D interpolate_transforms(const CATransform3D& from, const CATransform3D& to,
                                     double fraction);

}  // namespace host::quartzcore
