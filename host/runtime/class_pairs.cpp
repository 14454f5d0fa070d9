#include <dlfcn.h>

#include "host/runtime/exported.h"
#include "host/runtime/log.h"
#include "objc/abi.h"

// Who makes a class under a name that is taken gets none and may go on without it. A library loaded
// into this process binds to this definition, which comes before the runtime's and says so.
SONAVUE_EXPORTED objc::Class objc_allocateClassPair(objc::Class base, const char* name,
                                                    std::size_t extra_bytes) {
  static const auto allocate = reinterpret_cast<decltype(&objc_allocateClassPair)>(
      dlsym(RTLD_NEXT, "objc_allocateClassPair"));
  const objc::Class made = allocate(base, name, extra_bytes);
  if (!made && name && objc_getClass(name))
    spdlog::warn("class {} is not made: there is one of that name", name);
  return made;
}
