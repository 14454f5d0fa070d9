#include "host/springboard/surfaces/banner_controller.h"

#include "host/springboard/shared_instance.h"

namespace host::springboard {

void export_banner_controller() {
  objc::ClassBuilder("SBBannerController", "NSObject")
      .state<BannerController>()
      .class_method<&shared_instance<SBBannerController>>("sharedInstance")
      .method<&BannerController::present_banner>("_presentBannerForContext:reason:")
      .method<&BannerController::is_showing_banner>("isShowingBanner")
      .finish();
}

}  // namespace host::springboard
