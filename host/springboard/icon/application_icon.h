#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBApplicationIcon.h"

namespace host::springboard {

class ApplicationIcon : public objc::Implementation<ApplicationIcon, SBApplicationIcon> {
 public:
  using Implementation::Implementation;

  SBApplicationIcon init_with_application(SBApplication application);
  SBApplication application() const { return application_.get(); }
  NSString display_name() const { return application_->displayName(); }
  /// Returns the application's own picture, or a plain one with its initial when it has none.
  UIImage generate_icon_image(int format);

 private:
  objc::Ref<SBApplication> application_;
  objc::Ref<UIImage> image_;
};

void export_application_icon();

}  // namespace host::springboard
