#pragma once

#include "platform/Foundation/NSString.h"

/// One occurrence of a gesture; in an assignment, every occurrence of that gesture in that mode.
struct LAEvent : objc::Bound<LAEvent, "LAEvent", NSObject> {
  static LAEvent eventWithName(NSString name, NSString mode) {
    return call_class<"eventWithName:mode:", LAEvent>(name, mode);
  }
  LAEvent initWithName(NSString name, NSString mode) const {
    return call<"initWithName:mode:", LAEvent>(name, mode);
  }
  NSString name() const { return call<"name", NSString>(); }
  NSString mode() const { return call<"mode", NSString>(); }
  /// Whether a listener has handled the event.
  BOOL isHandled() const { return call<"isHandled", BOOL>(); }
  void setHandled(BOOL handled) const { call<"setHandled:">(handled); }
};
