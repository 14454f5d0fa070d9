#pragma once

#include "platform/Foundation/NSTimer.h"

extern "C" {
extern NSString NSDefaultRunLoopMode;
extern NSString NSRunLoopCommonModes;
}

struct NSRunLoop : objc::Bound<NSRunLoop, "NSRunLoop", NSObject> {
  static NSRunLoop mainRunLoop() { return call_class<"mainRunLoop", NSRunLoop>(); }
  static NSRunLoop currentRunLoop() { return call_class<"currentRunLoop", NSRunLoop>(); }
  void addTimer(NSTimer timer, NSString mode) const { call<"addTimer:forMode:">(timer, mode); }
};
