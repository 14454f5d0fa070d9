#include "host/activator/event/event.h"

namespace host::activator {

LAEvent Event::with_name(objc::Object cls, NSString name, NSString mode) {
  const auto made = objc::send<LAEvent>(cls, "alloc"_sel);
  return made.initWithName(name, mode).autorelease();
}

LAEvent Event::init(NSString name, NSString mode) {
  const auto made = super<LAEvent>("init"_sel);
  name_ = objc::Ref<NSString>::adopt(name.copy());
  mode_ = objc::Ref<NSString>::adopt(mode.copy());
  return made;
}

void export_event() {
  objc::ClassBuilder("LAEvent", "NSObject")
      .state<Event>()
      .class_method<&Event::with_name>("eventWithName:mode:")
      .method<&Event::init>("initWithName:mode:")
      .method<&Event::name>("name")
      .method<&Event::mode>("mode")
      .method<&Event::is_handled>("isHandled")
      .method<&Event::set_handled>("setHandled:")
      .finish();
}

}  // namespace host::activator
