#include "host/media/fetch_ahead.h"

#include <fcntl.h>

#include "host/basics/descriptor.h"

namespace host::media {
namespace {

// In bytes. The last page of an Ogg file, which has its length, is no longer.
constexpr std::int64_t kEnd = 64 << 10;

}  // namespace

void fetch_ahead(const std::string& path, std::int64_t size) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file) return;
  ::posix_fadvise(file.get(), 0, kEnd, POSIX_FADV_WILLNEED);
  if (size > kEnd) ::posix_fadvise(file.get(), size - kEnd, kEnd, POSIX_FADV_WILLNEED);
}

}  // namespace host::media
