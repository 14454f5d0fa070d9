#include "host/runtime/protocol.h"

#include "objc/abi.h"

// The compiler's start-up code calls this for each protocol that a program declares.
extern "C" void __objc_protocols_add_protocol(const char* name, objc_protocol* object);

// The runtime's layout.
struct objc_protocol {
  objc::Class isa;
  const char* name;
  void* adopted;
  void* instance_methods;
  void* class_methods;
};

namespace host {

void define_protocol(const char* name) {
  if (objc_getProtocol(name)) return;
  // Never freed: a protocol lives as long as the process.
  __objc_protocols_add_protocol(name,
                                new objc_protocol{objc_getClass("Protocol"), name, {}, {}, {}});
}

}  // namespace host
