#include <dlfcn.h>

#include "host/foundation/device_paths.h"
#include "host/runtime/device_images.h"
#include "host/runtime/exported.h"

// Loaded libraries, and Foundation on behalf of a bundle, request a framework by its path on the
// device. The symbols of all frameworks are in the program itself, so its handle serves for them.
SONAVUE_EXPORTED void* dlopen(const char* path, int mode) noexcept {
  using Open = void* (*)(const char*, int);
  static const auto next = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "dlopen"));
  const bool is_devices = path && host::load_device_image(host::foundation::path_on_device(path));
  return next(is_devices ? nullptr : path, mode);
}
