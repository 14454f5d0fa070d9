#pragma once

#include "platform/UIKit/UIViewController.h"

struct SBNotificationCenterViewController
    : objc::Bound<SBNotificationCenterViewController, "SBNotificationCenterViewController",
                  UIViewController> {
  void hostWillPresent() const { call<"hostWillPresent">(); }
};
