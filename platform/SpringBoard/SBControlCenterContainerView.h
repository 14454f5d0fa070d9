#pragma once

#include "platform/UIKit/UIView.h"

struct SBControlCenterContainerView
    : objc::Bound<SBControlCenterContainerView, "SBControlCenterContainerView", UIView> {
  void controlCenterWillPresent() const { call<"controlCenterWillPresent">(); }
};
