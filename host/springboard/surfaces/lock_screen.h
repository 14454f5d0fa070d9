#pragma once

#include "objc/class_builder.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"

namespace host::springboard {

/// Whether the phone is locked. The lock screen is not drawn yet.
class LockScreen : public objc::Implementation<LockScreen, SBLockScreenViewController> {
 public:
  using Implementation::Implementation;

  void handle_display_turned_off() { locked_ = YES; }
  void prepare_for_unlock() { locked_ = NO; }
  BOOL is_locked() const { return locked_; }

 private:
  BOOL locked_ = NO;
};

void export_lock_screen();

}  // namespace host::springboard
