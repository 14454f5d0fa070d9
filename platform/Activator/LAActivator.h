#pragma once

#include "platform/Activator/Activator.h"
#include "platform/Activator/LAEvent.h"
#include "platform/Foundation/NSArray.h"

/// The gesture service: listeners are registered under names, events are assigned to names.
struct LAActivator : objc::Bound<LAActivator, "LAActivator", NSObject, kActivatorImage> {
  /// Nil on a phone without the service.
  static LAActivator sharedInstance() { return call_class<"sharedInstance", LAActivator>(); }
  /// Retains the listener until it is unregistered or another is registered under the same name.
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

  /// Sends the event to every listener that it is assigned to.
  void sendEventToListener(LAEvent event) const { call<"sendEventToListener:">(event); }
  /// Returns NO and assigns nothing if the event is unknown or the listener does not support its
  /// mode.
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
