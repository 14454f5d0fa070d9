#include "host/application/surface/shared_surface.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace host::application {
namespace {

constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL;

unsigned char* map(const Descriptor& memory, std::size_t bytes, int protection) {
  void* mapped = mmap(nullptr, bytes, protection, MAP_SHARED, memory.get(), 0);
  return mapped == MAP_FAILED ? nullptr : static_cast<unsigned char*>(mapped);
}

std::size_t bytes_of(const SurfaceSize& size) {
  return size.buffer_bytes() * SharedSurface::kBuffers;
}

/// Returns whether the memory has that size, sealed against changes.
bool is_as_promised(const Descriptor& memory, const SurfaceSize& size) {
  struct stat status;
  const int seals = fcntl(memory.get(), F_GET_SEALS);
  return seals >= 0 && (seals & F_SEAL_SHRINK) && fstat(memory.get(), &status) == 0 &&
         static_cast<std::size_t>(status.st_size) >= bytes_of(size);
}

}  // namespace

std::shared_ptr<const SharedSurface> SharedSurface::make(const SurfaceSize& size) {
  if (!size.is_sound()) return nullptr;
  Descriptor memory(memfd_create("surface", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  if (!memory || ftruncate(memory.get(), static_cast<off_t>(bytes_of(size))) != 0) return nullptr;
  if (fcntl(memory.get(), F_ADD_SEALS, kSeals) != 0) return nullptr;
  unsigned char* pixels = map(memory, bytes_of(size), PROT_READ);
  if (!pixels) return nullptr;
  return std::shared_ptr<const SharedSurface>(new SharedSurface(std::move(memory), size, pixels));
}

std::shared_ptr<SharedSurface> SharedSurface::open(Descriptor memory, const SurfaceSize& size) {
  if (!size.is_sound() || !memory || !is_as_promised(memory, size)) return nullptr;
  unsigned char* pixels = map(memory, bytes_of(size), PROT_READ | PROT_WRITE);
  if (!pixels) return nullptr;
  return std::shared_ptr<SharedSurface>(new SharedSurface(std::move(memory), size, pixels));
}

SharedSurface::~SharedSurface() {
  munmap(pixels_, bytes_of(size_));
}

}  // namespace host::application
