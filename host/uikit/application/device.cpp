#include "host/uikit/application/device.h"

#include <string>

#include "host/runtime/device_model.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIDevice.h"

namespace host::uikit {
namespace {

UIDevice current(objc::Object) {
  static const UIDevice device = UIDevice::alloc().init();
  return device;
}

NSString name(UIDevice) {
  return NSString::stringWithUTF8String(std::string(current_device().name).c_str());
}

NSString model(UIDevice) {
  return current_device().is_tablet ? "iPad"_ns : "iPhone"_ns;
}

NSString system_name(UIDevice) {
  return "iPhone OS"_ns;
}
NSString system_version(UIDevice) {
  return "8.1"_ns;
}

UIUserInterfaceIdiom user_interface_idiom(UIDevice) {
  return current_device().is_tablet ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

}  // namespace

void export_device() {
  objc::ClassBuilder("UIDevice", "NSObject")
      .class_method<&current>("currentDevice")
      .method<&name>("name")
      .method<&model>("model")
      .method<&model>("localizedModel")
      .method<&system_name>("systemName")
      .method<&system_version>("systemVersion")
      .method<&user_interface_idiom>("userInterfaceIdiom")
      .finish();
}

}  // namespace host::uikit
