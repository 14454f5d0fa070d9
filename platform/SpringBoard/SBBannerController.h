#pragma once

#include "platform/Foundation/NSObject.h"

struct SBBannerController : objc::Bound<SBBannerController, "SBBannerController", NSObject> {
  static SBBannerController sharedInstance() {
    return call_class<"sharedInstance", SBBannerController>();
  }
  void _presentBannerForContext(objc::Object context, NSInteger reason) const {
    call<"_presentBannerForContext:reason:">(context, reason);
  }
  BOOL isShowingBanner() const { return call<"isShowingBanner", BOOL>(); }
};
