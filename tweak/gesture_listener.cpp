#include "tweak/gesture_listener.h"

#include "objc/autorelease_pool.h"
#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"
#include "tweak/globals.h"

namespace sonavue {
namespace {

// The event is not marked as handled: others may listen to the same gesture.
void receive_event(SVActivatorListener, LAActivator, LAEvent) {
  objc::AutoreleasePool pool;
  objc::send<>(Spring, "showBanner"_sel);
}

}  // namespace

void make_gesture_listener() {
  objc::ClassBuilder("SVActivatorListener", "NSObject")
      .method<&receive_event>("activator:receiveEvent:")
      .finish();
}

}  // namespace sonavue
