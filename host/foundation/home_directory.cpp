#include "host/runtime/exported.h"
#include "platform/Foundation/NSString.h"

// What Foundation and every loaded library take for the user's folder: the device's, whoever uses
// this machine.
SONAVUE_EXPORTED objc::Id NSHomeDirectory() {
  return "/var/mobile"_ns.id();
}
