#pragma once

#include "platform/UIKit/UIApplication.h"

/// The home screen's application object.
struct SpringBoard : objc::Bound<SpringBoard, "SpringBoard", UIApplication> {
  void applicationDidFinishLaunching(objc::Object application) const {
    call<"applicationDidFinishLaunching:">(application);
  }
};
