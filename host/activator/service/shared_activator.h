#pragma once

#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"

namespace host::activator {

/// The service as listeners and pages see it.
class SharedActivator : public objc::Implementation<SharedActivator, LAActivator> {
 public:
  using Implementation::Implementation;

  static LAActivator shared_instance(objc::Object);

  void register_listener(objc::Object listener, NSString name);
  void unregister_listener(NSString name);
  objc::Object listener(NSString name);
  NSArray listener_names();
  NSArray event_names();
  NSArray modes();
  NSString current_mode();
  void send_event(LAEvent event);
  BOOL assign(LAEvent event, NSString listener);
  void unassign(LAEvent event, NSString listener);
  NSArray assigned(LAEvent event);
};

void export_shared_activator();

}  // namespace host::activator
