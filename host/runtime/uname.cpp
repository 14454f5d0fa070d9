#include <sys/utsname.h>

#include <cstring>

#include "host/runtime/device_model.h"
#include "host/runtime/exported.h"

// Libraries loaded into this process ask the system for the machine and get the device model: their
// calls bind to this definition, which precedes the C library's.
SONAVUE_EXPORTED int uname(utsname* name) {
  if (!name) return -1;
  *name = {};
  const auto put = [](auto& field, std::string_view text) {
    std::memcpy(field, text.data(), std::min(text.size(), sizeof(field) - 1));
  };
  put(name->sysname, "Darwin");
  put(name->nodename, "phone");
  put(name->release, "14.0.0");
  put(name->version, "Darwin Kernel Version 14.0.0");
  put(name->machine, host::current_device().identifier);
  return 0;
}
