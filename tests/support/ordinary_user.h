#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

/// While an instance lives, file permissions apply to the calling thread even when it belongs to
/// root.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    syscall(SYS_capget, &header_, before_);
    __user_cap_data_struct reduced[_LINUX_CAPABILITY_U32S_3] = {before_[0], before_[1]};
    reduced[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    syscall(SYS_capset, &header_, reduced);
  }
  ~OrdinaryUser() { syscall(SYS_capset, &header_, before_); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct before_[_LINUX_CAPABILITY_U32S_3]{};
};
