#pragma once

#include <algorithm>

#include "host/uikit/scroll_physics/paging.h"
#include "platform/UIKit/UIGeometry.h"

namespace host::uikit {

/// The offsets at which a scroll view may rest. The smallest is the negated inset before the
/// content; content smaller than the view rests there.
struct ScrollGeometry {
  CGSize view;
  CGSize content;
  UIEdgeInsets inset;

  OffsetRange horizontal() const {
    return range(inset.left, inset.right, content.width, view.width);
  }
  OffsetRange vertical() const {
    return range(inset.top, inset.bottom, content.height, view.height);
  }
  CGPoint clamp(CGPoint offset) const {
    return {horizontal().clamp(offset.x), vertical().clamp(offset.y)};
  }

 private:
  static OffsetRange range(double before, double after, double content, double view) {
    return {-before, std::max(-before, content + after - view)};
  }
};

}  // namespace host::uikit
