#pragma once

#include "platform/Activator/Activator.h"
#include "platform/Activator/LAEvent.h"
#include "platform/Foundation/NSArray.h"

/// The gesture service: listeners are registered under names, events are assigned to names.
struct LAActivator : objc::Bound<LAActivator, "LAActivator", NSObject, kActivatorImage> {
  /// Nil on a phone without the service.
  static LAActivator sharedInstance() { return call_class<"sharedInstance", LAActivator>(); }
  /// The service keeps the listener until another is registered under the name or it is taken out.
  void registerListener(objc::Object listener, NSString name) const {
    call<"registerListener:forName:">(listener, name);
  }
  void unregisterListenerWithName(NSString name) const {
    call<"unregisterListenerWithName:">(name);
  }
  objc::Object listenerForName(NSString name) const {
    return call<"listenerForName:", objc::Object>(name);
  }

  NSArray availableListenerNames() const { return call<"availableListenerNames", NSArray>(); }
  NSArray availableEventNames() const { return call<"availableEventNames", NSArray>(); }
  NSArray availableEventModes() const { return call<"availableEventModes", NSArray>(); }
  NSString currentEventMode() const { return call<"currentEventMode", NSString>(); }

  /// To every listener that the event is assigned to.
  void sendEventToListener(LAEvent event) const { call<"sendEventToListener:">(event); }
  /// NO, and nothing is assigned, for an unknown event and for a mode that is not the listener's.
  BOOL assignEvent(LAEvent event, NSString listener) const {
    return call<"assignEvent:toListenerWithName:", BOOL>(event, listener);
  }
  void unassignEvent(LAEvent event, NSString listener) const {
    call<"unassignEvent:fromListenerWithName:">(event, listener);
  }
  NSArray assignedListenerNamesForEvent(LAEvent event) const {
    return call<"assignedListenerNamesForEvent:", NSArray>(event);
  }
};
