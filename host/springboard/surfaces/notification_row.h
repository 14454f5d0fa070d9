#pragma once

#include "host/springboard/surfaces/notification_store.h"
#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::springboard {

/// The application that messages come from.
inline constexpr const char* kMessages = "com.apple.MobileSMS";
inline constexpr CGFloat kNotificationRowHeight = 62;

/// Adds a row with icon, title, time and text in white, for banners and lists.
objc::Ref<UIView> add_notification_row(UIView parent, CGRect frame,
                                       const Notification& notification);

}  // namespace host::springboard
