#include "settings/wizard/locked_view_controller.h"

namespace sonavue {
namespace {

BOOL should_autorotate(LockedUIViewController) {
  return NO;
}
NSUInteger supported_orientations(LockedUIViewController) {
  return kPortraitOnly;
}

}  // namespace

void make_locked_view_controller() {
  objc::make_own_class<LockedUIViewController>([](objc::ClassBuilder& builder) {
    builder.method<&should_autorotate>("shouldAutorotate")
        .method<&supported_orientations>("supportedInterfaceOrientations");
  });
}

}  // namespace sonavue
