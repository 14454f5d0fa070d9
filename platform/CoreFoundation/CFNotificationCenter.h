#pragma once

#include "platform/Foundation/NSString.h"

using CFNotificationCallback = void (*)(void* center, void* observer, objc::Id name,
                                        const void* object, objc::Id info);

extern "C" {
void* CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterAddObserver(void* center, const void* observer,
                                     CFNotificationCallback callback, objc::Id name,
                                     const void* object, NSInteger behavior);
}

/// Calls the function whenever any process posts the notification.
template <void (*Function)()>
void observe_darwin_notification(NSString name) {
  const CFNotificationCallback call = [](void*, void*, objc::Id, const void*, objc::Id) {
    Function();
  };
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, call,
                                  name.id(), nullptr, 0);
}
