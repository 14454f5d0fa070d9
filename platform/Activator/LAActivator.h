#pragma once

#include "platform/Foundation/NSString.h"

/// The gesture service: listeners are registered under names, events are assigned to names.
struct LAActivator : objc::Bound<LAActivator, "LAActivator", NSObject> {
  /// Nil on a phone without the service.
  static LAActivator sharedInstance() { return call_class<"sharedInstance", LAActivator>(); }
  void registerListener(objc::Object listener, NSString name) const {
    call<"registerListener:forName:">(listener, name);
  }
};

/// One occurrence of a gesture.
struct LAEvent : objc::Bound<LAEvent, "LAEvent", NSObject> {
  NSString name() const { return call<"name", NSString>(); }
  NSString mode() const { return call<"mode", NSString>(); }
};
