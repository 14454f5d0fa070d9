#include "host/uikit/application/screen.h"

#include "host/runtime/device_model.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIApplication.h"

namespace host::uikit {
namespace {

constexpr CGFloat kHeightWithoutApplication = 20;

UIScreen main_screen(objc::Object) {
  static const UIScreen screen = UIScreen::alloc().init();
  return screen;
}

NSArray screens(objc::Object) {
  return NSArray::arrayWithObject(UIScreen::mainScreen());
}

CGRect bounds(UIScreen) {
  return {0, 0, current_device().width, current_device().height};
}

CGRect native_bounds(UIScreen screen) {
  const CGSize size = screen.bounds().size;
  const CGFloat scale = screen.scale();
  return {0, 0, size.width * scale, size.height * scale};
}

CGRect application_frame(UIScreen screen) {
  const CGSize size = screen.bounds().size;
  const UIApplication application = UIApplication::sharedApplication();
  const CGFloat top = application ? application.statusBarHeight() : kHeightWithoutApplication;
  return {0, top, size.width, size.height - top};
}

CGFloat scale(UIScreen) {
  return current_device().scale;
}

}  // namespace

void export_screen() {
  objc::ClassBuilder("UIScreen", "NSObject")
      .class_method<&main_screen>("mainScreen")
      .class_method<&screens>("screens")
      .method<&bounds>("bounds")
      .method<&native_bounds>("nativeBounds")
      .method<&application_frame>("applicationFrame")
      .method<&scale>("scale")
      .finish();
}

}  // namespace host::uikit
