#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIView.h"

/// The base of all progress controls: two colours, a progress from 0 to 1, and the duration of an
/// animated change.
struct M13ProgressView : objc::Own<M13ProgressView, "M13ProgressView", UIView> {
  UIColor primaryColor() const { return call<"primaryColor", UIColor>(); }
  void setPrimaryColor(UIColor color) const { call<"setPrimaryColor:">(color); }
  UIColor secondaryColor() const { return call<"secondaryColor", UIColor>(); }
  void setSecondaryColor(UIColor color) const { call<"setSecondaryColor:">(color); }
  BOOL indeterminate() const { return call<"indeterminate", BOOL>(); }
  void setIndeterminate(BOOL indeterminate) const { call<"setIndeterminate:">(indeterminate); }
  /// In seconds.
  double animationDuration() const { return call<"animationDuration", double>(); }
  void setAnimationDuration(double seconds) const { call<"setAnimationDuration:">(seconds); }
  float progress() const { return call<"progress", float>(); }
  void setProgress(float progress, BOOL animated) const {
    call<"setProgress:animated:">(progress, animated);
  }
  void performAction(NSInteger action, BOOL animated) const {
    call<"performAction:animated:">(action, animated);
  }
};

enum M13ProgressViewAction : NSInteger {
  M13ProgressViewActionNone,
  M13ProgressViewActionSuccess,
  M13ProgressViewActionFailure,
};

namespace sonavue {

/// Registers the class with the runtime.
void make_progress_view();

}  // namespace sonavue
