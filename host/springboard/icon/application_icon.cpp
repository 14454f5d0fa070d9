#include "host/springboard/icon/application_icon.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/icon/icon_image.h"

namespace host::springboard {

SBApplicationIcon ApplicationIcon::init_with_application(SBApplication application) {
  const auto made = super<SBApplicationIcon>("init"_sel);
  if (made) application_.reset(application);
  return made;
}

UIImage ApplicationIcon::generate_icon_image(int) {
  if (!image_) {
    image_.reset(application_image(application_.get()));
    if (!image_) image_.reset(initial_image(self.displayName()));
    if (application_->bundleIdentifier().isEqualToString("com.apple.mobilecal"_ns))
      image_.reset(calendar_image(image_.get(), configuration().wall_clock->day()));
  }
  return image_.get();
}

void export_application_icon() {
  objc::ClassBuilder("SBApplicationIcon", "SBIcon")
      .state<ApplicationIcon>()
      .method<&ApplicationIcon::init_with_application>("initWithApplication:")
      .method<&ApplicationIcon::application>("application")
      .method<&ApplicationIcon::display_name>("displayName")
      .method<&ApplicationIcon::generate_icon_image>("generateIconImage:")
      .finish();
}

}  // namespace host::springboard
