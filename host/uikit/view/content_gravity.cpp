#include "host/uikit/view/content_gravity.h"

namespace host::uikit {

NSString contents_gravity(UIViewContentMode mode) {
  switch (mode) {
    case UIViewContentModeScaleAspectFit:
      return "resizeAspect"_ns;
    case UIViewContentModeScaleAspectFill:
      return "resizeAspectFill"_ns;
    case UIViewContentModeCenter:
      return "center"_ns;
    case UIViewContentModeTop:
      return "bottom"_ns;
    case UIViewContentModeBottom:
      return "top"_ns;
    case UIViewContentModeLeft:
      return "left"_ns;
    case UIViewContentModeRight:
      return "right"_ns;
    case UIViewContentModeTopLeft:
      return "bottomLeft"_ns;
    case UIViewContentModeTopRight:
      return "bottomRight"_ns;
    case UIViewContentModeBottomLeft:
      return "topLeft"_ns;
    case UIViewContentModeBottomRight:
      return "topRight"_ns;
    case UIViewContentModeScaleToFill:
    case UIViewContentModeRedraw:
      break;
  }
  return "resize"_ns;
}

}  // namespace host::uikit
