#include "host/activator/page/exports.h"

#include "host/activator/event/event.h"
#include "host/activator/page/listener_list_page.h"
#include "host/activator/page/listener_page.h"
#include "host/activator/service/shared_activator.h"
#include "host/runtime/protocol.h"

namespace host::activator {

void export_activator() {
  if (objc_getClass("LAActivator")) return;
  define_protocol("LAListener");
  export_event();
  export_shared_activator();
  export_listener_page();
  export_listener_list_page();
}

}  // namespace host::activator
