#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBControlCenterContainerView.h"
#include "platform/SpringBoard/SBControlCenterController.h"

namespace host::springboard {

/// Whether the control centre is up. It is not drawn yet; its view only hears that it will come.
class ControlCentre : public objc::Implementation<ControlCentre, SBControlCenterController> {
 public:
  using Implementation::Implementation;

  void present_animated(BOOL animated);
  void dismiss_animated(BOOL) { presented_ = NO; }
  BOOL is_presented() const { return presented_; }

 private:
  objc::Ref<SBControlCenterContainerView> view_;
  BOOL presented_ = NO;
};

void export_control_centre_view();
void export_control_centre();

}  // namespace host::springboard
