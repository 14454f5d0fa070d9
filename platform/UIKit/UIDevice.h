#pragma once

#include "platform/Foundation/NSString.h"

enum UIUserInterfaceIdiom : NSInteger {
  UIUserInterfaceIdiomPhone,
  UIUserInterfaceIdiomPad,
};

struct UIDevice : objc::Bound<UIDevice, "UIDevice", NSObject> {
  static UIDevice currentDevice() { return call_class<"currentDevice", UIDevice>(); }
  NSString name() const { return call<"name", NSString>(); }
  NSString model() const { return call<"model", NSString>(); }
  NSString localizedModel() const { return call<"localizedModel", NSString>(); }
  NSString systemName() const { return call<"systemName", NSString>(); }
  NSString systemVersion() const { return call<"systemVersion", NSString>(); }
  UIUserInterfaceIdiom userInterfaceIdiom() const {
    return call<"userInterfaceIdiom", UIUserInterfaceIdiom>();
  }
};
