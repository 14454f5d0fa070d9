#include "host/runtime/protocol.h"

#include "objc/abi.h"

// What the compiler's start-up code calls for each protocol that a program declares.
extern "C" void __objc_protocols_add_protocol(const char* name, objc_protocol* object);

// As the runtime lays it out.
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
  // It lives as long as the process.
  __objc_protocols_add_protocol(name,
                                new objc_protocol{objc_getClass("Protocol"), name, {}, {}, {}});
}

}  // namespace host
