#include <dlfcn.h>

#include "host/runtime/exported.h"
#include "host/runtime/log.h"
#include "objc/abi.h"

// A caller that creates a class under an existing name gets nil, and may continue without noticing.
// Libraries loaded into this process bind to this definition, which precedes the runtime's and logs
// the error.
SONAVUE_EXPORTED objc::Class objc_allocateClassPair(objc::Class base, const char* name,
                                                    std::size_t extra_bytes) {
  static const auto allocate = reinterpret_cast<decltype(&objc_allocateClassPair)>(
      dlsym(RTLD_NEXT, "objc_allocateClassPair"));
  const objc::Class made = allocate(base, name, extra_bytes);
  if (!made && name && objc_getClass(name))
    spdlog::warn("class {} is not created: the name is taken", name);
  return made;
}
