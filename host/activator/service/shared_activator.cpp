#include "host/activator/service/shared_activator.h"

#include "host/activator/event/event_kinds.h"
#include "host/activator/event/strings.h"
#include "host/activator/service/service.h"

namespace host::activator {
namespace {

template <class Names>
NSArray array_of(const Names& names) {
  const auto array = NSMutableArray::array();
  for (const std::string& name : names)
    array.addObject(to_ns(name));
  return array;
}

}  // namespace

LAActivator SharedActivator::shared_instance(objc::Object) {
  // A bare handle: nothing must be released after `main` has ended.
  static const LAActivator instance = LAActivator::alloc().init();
  return instance;
}

void SharedActivator::register_listener(objc::Object listener, NSString name) {
  Service::shared().add(objc::cast<LAListener>(listener), to_string(name));
}

void SharedActivator::unregister_listener(NSString name) {
  Service::shared().remove(to_string(name));
}

objc::Object SharedActivator::listener(NSString name) {
  return Service::shared().listener(to_string(name));
}

NSArray SharedActivator::listener_names() {
  return array_of(Service::shared().listener_names());
}

NSArray SharedActivator::event_names() {
  std::vector<std::string> names;
  for (const EventKind& kind : event_kinds())
    names.emplace_back(kind.name);
  return array_of(names);
}

NSArray SharedActivator::modes() {
  std::vector<std::string> names;
  for (const ModeKind& kind : mode_kinds())
    names.emplace_back(kind.name);
  return array_of(names);
}

NSString SharedActivator::current_mode() {
  return to_ns(name_of(Service::shared().present_mode()));
}

void SharedActivator::send_event(LAEvent event) {
  Service::shared().send(event);
}

BOOL SharedActivator::assign(LAEvent event, NSString listener) {
  return Service::shared().assign(to_string(event.name()), to_string(event.mode()),
                                  to_string(listener));
}

void SharedActivator::unassign(LAEvent event, NSString listener) {
  Service::shared().assignments().unassign(to_string(event.name()), to_string(event.mode()),
                                           to_string(listener));
}

NSArray SharedActivator::assigned(LAEvent event) {
  return array_of(Service::shared().assignments().current().listeners(to_string(event.name()),
                                                                      to_string(event.mode())));
}

void export_shared_activator() {
  using Shared = SharedActivator;
  objc::ClassBuilder("LAActivator", "NSObject")
      .state<Shared>()
      .class_method<&Shared::shared_instance>("sharedInstance")
      .method<&Shared::register_listener>("registerListener:forName:")
      .method<&Shared::unregister_listener>("unregisterListenerWithName:")
      .method<&Shared::listener>("listenerForName:")
      .method<&Shared::listener_names>("availableListenerNames")
      .method<&Shared::event_names>("availableEventNames")
      .method<&Shared::modes>("availableEventModes")
      .method<&Shared::current_mode>("currentEventMode")
      .method<&Shared::send_event>("sendEventToListener:")
      .method<&Shared::assign>("assignEvent:toListenerWithName:")
      .method<&Shared::unassign>("unassignEvent:fromListenerWithName:")
      .method<&Shared::assigned>("assignedListenerNamesForEvent:")
      .finish();
}

}  // namespace host::activator
