#include "host/foundation/exports.h"

#include "objc/autorelease_pool.h"

namespace host::foundation {

void export_foundation() {
  objc::AutoreleasePool pool;
  export_device_paths();
  export_timers();
  export_property_lists();
  export_property_list_reader();
  export_string_search();
  export_addresses();
  export_bundles();
}

}  // namespace host::foundation
