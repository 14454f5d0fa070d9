#pragma once

#include "objc/class_builder.h"
#include "platform/SpringBoard/SBNotificationCenterViewController.h"

namespace host::springboard {

/// Whether the notification centre was called up. It is not drawn yet.
class NotificationCentre
    : public objc::Implementation<NotificationCentre, SBNotificationCenterViewController> {
 public:
  using Implementation::Implementation;

  void host_will_present() { presented_ = YES; }
  BOOL is_presented() const { return presented_; }

 private:
  BOOL presented_ = NO;
};

void export_notification_centre();

}  // namespace host::springboard
