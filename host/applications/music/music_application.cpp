#include "host/applications/music/music_application.h"

#include "host/runtime/device_model.h"
#include "platform/UIKit/UILabel.h"

namespace host::music {

void MusicApplication::application_did_finish_launching(objc::Object) {
  const DeviceModel& device = current_device();
  window_ = objc::Ref<UIWindow>::adopt(
      objc::cast<UIWindow>(UIWindow::alloc().initWithFrame({0, 0, device.width, device.height})));
  window_->setBackgroundColor(UIColor::whiteColor());
  const auto label =
      objc::cast<UILabel>(UILabel::alloc().initWithFrame({20, 100, 300, 40}).autorelease());
  label.setText("Music"_ns);
  window_->addSubview(label);
  window_->makeKeyAndVisible();
}

void prepare_music(bool) {}

void export_music_classes() {
  objc::ClassBuilder("MusicApplication", "UIApplication")
      .state<MusicApplication>()
      .method<&MusicApplication::application_did_finish_launching>("applicationDidFinishLaunching:")
      .finish();
}

}  // namespace host::music
