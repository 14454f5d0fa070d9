#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::springboard {

/// "slide to unlock", with a light that runs over it from left to right while it shimmers.
class UnlockText {
 public:
  UnlockText(UIView parent, CGRect frame);

  void start_shimmer() const;
  void stop_shimmer() const;

 private:
  objc::Ref<UIView> view_;
  objc::Ref<CALayer> light_;
};

}  // namespace host::springboard
