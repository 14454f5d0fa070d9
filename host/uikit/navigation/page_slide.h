#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Two pages of a stack while one slides over the other: the upper one comes from the right, the
/// lower one moves a third as far and is shaded.
class PageSlide {
 public:
  PageSlide(UIView container, UIView upper, UIView lower);
  ~PageSlide();
  PageSlide(const PageSlide&) = delete;
  PageSlide& operator=(const PageSlide&) = delete;

  /// At 0 the upper page is off screen, at 1 it is in place.
  void show(CGFloat share) const;

 private:
  CGRect place_;
  objc::Ref<UIView> upper_;
  objc::Ref<UIView> lower_;
  objc::Ref<UIView> shade_;
  objc::Ref<UIView> edge_;
};

}  // namespace host::uikit
