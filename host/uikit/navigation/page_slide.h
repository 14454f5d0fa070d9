#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Two pages of a stack while one slides over the other: the upper one comes from the right, the
/// lower one makes way a third as far and lies in a shade.
class PageSlide {
 public:
  PageSlide(UIView container, UIView upper, UIView lower);
  ~PageSlide();
  PageSlide(const PageSlide&) = delete;
  PageSlide& operator=(const PageSlide&) = delete;

  /// 0 has the upper page off the screen, 1 in its place.
  void show(CGFloat share) const;

 private:
  CGRect place_;
  objc::Ref<UIView> upper_;
  objc::Ref<UIView> lower_;
  objc::Ref<UIView> shade_;
  objc::Ref<UIView> edge_;
};

}  // namespace host::uikit
