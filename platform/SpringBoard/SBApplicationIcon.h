#pragma once

#include "platform/SpringBoard/SBIcon.h"

struct SBApplicationIcon : objc::Bound<SBApplicationIcon, "SBApplicationIcon", SBIcon> {
  SBApplicationIcon initWithApplication(SBApplication application) const {
    return call<"initWithApplication:", SBApplicationIcon>(application);
  }
};
