#pragma once

#include "platform/Activator/LAEvent.h"
#include "platform/Foundation/NSArray.h"
#include "platform/UIKit/UIImage.h"

struct LAActivator;

/// The messages that the gesture service sends to a listener. Only `receiveEvent` is required; the
/// others are optional.
struct LAListener : objc::Bound<LAListener, "LAListener", NSObject> {
  void receiveEvent(objc::Object activator, LAEvent event) const {
    call<"activator:receiveEvent:">(activator, event);
  }
  UIImage requiresIcon(objc::Object activator, NSString name, CGFloat scale) const {
    return call<"activator:requiresIconForListenerName:scale:", UIImage>(activator, name, scale);
  }
  UIImage requiresSmallIcon(objc::Object activator, NSString name, CGFloat scale) const {
    return call<"activator:requiresSmallIconForListenerName:scale:", UIImage>(activator, name,
                                                                              scale);
  }
  NSString requiresLocalizedGroup(objc::Object activator, NSString name) const {
    return call<"activator:requiresLocalizedGroupForListenerName:", NSString>(activator, name);
  }
  NSString requiresLocalizedTitle(objc::Object activator, NSString name) const {
    return call<"activator:requiresLocalizedTitleForListenerName:", NSString>(activator, name);
  }
  NSString requiresLocalizedDescription(objc::Object activator, NSString name) const {
    return call<"activator:requiresLocalizedDescriptionForListenerName:", NSString>(activator,
                                                                                    name);
  }
  /// Names of modes; nil means every mode.
  NSArray requiresCompatibleEventModes(objc::Object activator, NSString name) const {
    return call<"activator:requiresCompatibleEventModesForListenerWithName:", NSArray>(activator,
                                                                                       name);
  }
};
