#include "tests/support/no_descriptors.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <optional>

namespace {

std::optional<rlimit> usual_limit;  // While there are no descriptors.

}  // namespace

NoDescriptors::NoDescriptors() {
  getrlimit(RLIMIT_NOFILE, &usual_limit.emplace());
  const int next = open("/", O_PATH | O_CLOEXEC);
  close(next);
  const rlimit full{static_cast<rlim_t>(next), usual_limit->rlim_max};
  setrlimit(RLIMIT_NOFILE, &full);
}

NoDescriptors::~NoDescriptors() {
  setrlimit(RLIMIT_NOFILE, &*usual_limit);
  usual_limit.reset();
}

#ifdef __SANITIZE_ADDRESS__
// The sanitizers read an object through a pipe before they judge its type. Without one they take
// every object for garbage, so the pipe is the one thing that can still be opened.
extern "C" [[gnu::visibility("default")]] int pipe(int ends[2]) noexcept {
  if (!usual_limit) return pipe2(ends, 0);
  rlimit full;
  getrlimit(RLIMIT_NOFILE, &full);
  setrlimit(RLIMIT_NOFILE, &*usual_limit);
  const int result = pipe2(ends, 0);
  setrlimit(RLIMIT_NOFILE, &full);
  return result;
}
#endif
