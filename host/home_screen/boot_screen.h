#pragma once

#include "host/media_player/media_options.h"
#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

namespace host::launcher {

/// What a phone shows before its home screen: a dark screen with a line of text, a thin bar and a
/// count. It is gone with this object.
class BootScreen {
 public:
  BootScreen();
  ~BootScreen();
  BootScreen(const BootScreen&) = delete;
  BootScreen& operator=(const BootScreen&) = delete;

  void show(const media_player::MediaProgress& progress);

 private:
  objc::Ref<UIWindow> window_;
  objc::Ref<UILabel> text_;
  objc::Ref<UILabel> count_;
  objc::Ref<UIView> track_;
  objc::Ref<UIView> bar_;
};

}  // namespace host::launcher
