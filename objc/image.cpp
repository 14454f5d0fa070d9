#include "objc/image.h"

// Declared here because the phone is built without the C library's headers.
extern "C" void* dlopen(const char* path, int mode);

namespace objc {
namespace {

constexpr int kBindLazily = 1;

}  // namespace

// The image is never unloaded, since its classes cannot be.
void load_image(const char* path) {
  dlopen(path, kBindLazily);
}

}  // namespace objc
