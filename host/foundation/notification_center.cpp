#include "host/foundation/notifications.h"
#include "host/runtime/exported.h"
#include "platform/Foundation/NSString.h"

// The platform's C functions for notifications between processes.

namespace {

struct NotificationCenter {
  char unused;
};

NotificationCenter center;

using Callback = void (*)(NotificationCenter* center, void* observer, objc::Id name,
                          const void* object, objc::Id user_info);

const char* text_of(objc::Id name) {
  const char* text = objc::wrap<NSString>(name).UTF8String();
  return text ? text : "";
}

}  // namespace

SONAVUE_EXPORTED NotificationCenter* CFNotificationCenterGetDarwinNotifyCenter() {
  return &center;
}

// Neither the object nor the behavior means anything between processes.
SONAVUE_EXPORTED void CFNotificationCenterAddObserver(NotificationCenter* from, void* observer,
                                                      Callback callback, objc::Id name, const void*,
                                                      long) {
  if (from != &center || !callback || !name) return;
  const auto kept = objc::wrap<NSString>(name).retain();
  host::foundation::observe_processes(observer, text_of(name), [observer, callback, kept] {
    callback(&center, observer, kept.id(), nullptr, nullptr);
  });
}

SONAVUE_EXPORTED void CFNotificationCenterRemoveObserver(NotificationCenter*, const void* observer,
                                                         objc::Id name, const void*) {
  host::foundation::stop_observing_processes(observer, text_of(name));
}

SONAVUE_EXPORTED void CFNotificationCenterRemoveEveryObserver(NotificationCenter*,
                                                              const void* observer) {
  host::foundation::stop_observing_processes(observer, "");
}

SONAVUE_EXPORTED void CFNotificationCenterPostNotification(NotificationCenter* to, objc::Id name,
                                                           const void*, const void*,
                                                           unsigned char) {
  if (to == &center && name) host::foundation::post_to_processes(text_of(name));
}

SONAVUE_EXPORTED unsigned notify_post(const char* name) {
  if (name) host::foundation::post_to_processes(name);
  return 0;
}
