#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

namespace host::springboard {

/// White text with a soft shadow, which keeps it readable on any wallpaper.
class IconLabel {
 public:
  /// Adds itself to `parent`; the frame is in the parent's coordinates.
  IconLabel(UIView parent, CGRect frame);
  void set_text(NSString text) const;

 private:
  objc::Ref<UILabel> far_shadow_;
  objc::Ref<UILabel> near_shadow_;
  objc::Ref<UILabel> text_;
};

}  // namespace host::springboard
