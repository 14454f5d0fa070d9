#pragma once

#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// A ring around a view. It belongs to no view and no window, so that no program finds it: whoever
/// draws the windows draws this layer over them.
class FocusRing {
 public:
  void show_around(UIView view);
  void hide() { layer_.reset(); }
  /// Nil while the ring is hidden.
  CALayer layer() const { return layer_.get(); }

 private:
  objc::Ref<CALayer> layer_;
  objc::Ref<CALayer> inner_;
};

}  // namespace host::uikit
