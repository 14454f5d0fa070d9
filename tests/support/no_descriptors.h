#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// While an instance lives, this process cannot open another file.
class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const int next = open("/", O_PATH | O_CLOEXEC);
    close(next);
    const rlimit full{static_cast<rlim_t>(next), before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &full);
  }
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }
  NoDescriptors(const NoDescriptors&) = delete;
  NoDescriptors& operator=(const NoDescriptors&) = delete;

 private:
  rlimit before_{};
};
