#include "host/runtime/exported.h"
#include "platform/Foundation/NSString.h"

// The home folder for Foundation and all loaded libraries: always the device's, regardless of the
// user of this machine.
SONAVUE_EXPORTED objc::Id NSHomeDirectory() {
  return "/var/mobile"_ns.id();
}
