#include "host/springboard/surfaces/control_centre.h"

#include "host/springboard/screen_grid.h"
#include "host/springboard/shared_instance.h"
#include "host/springboard/view/make_view.h"

namespace host::springboard {
namespace {

void control_centre_will_present(SBControlCenterContainerView) {}

}  // namespace

void ControlCentre::present_animated(BOOL) {
  if (presented_) return;
  if (!view_) view_ = make_view<SBControlCenterContainerView>({{0, 0}, screen_grid().screen});
  // Up before the view hears of it: somebody may dismiss it there and then.
  presented_ = YES;
  view_->controlCenterWillPresent();
}

void export_control_centre_view() {
  objc::ClassBuilder("SBControlCenterContainerView", "UIView")
      .method<&control_centre_will_present>("controlCenterWillPresent")
      .finish();
}

void export_control_centre() {
  objc::ClassBuilder("SBControlCenterController", "NSObject")
      .state<ControlCentre>()
      .class_method<&shared_instance<SBControlCenterController>>("sharedInstance")
      .method<&ControlCentre::present_animated>("presentAnimated:")
      .method<&ControlCentre::dismiss_animated>("dismissAnimated:")
      .method<&ControlCentre::is_presented>("isPresented")
      .finish();
}

}  // namespace host::springboard
