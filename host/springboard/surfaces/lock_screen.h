#pragma once

#include <memory>

#include "host/springboard/surfaces/lock_screen_panel.h"
#include "host/springboard/surfaces/notification_store.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"

namespace host::springboard {

/// Locks the phone when its display goes dark, and covers the whole home screen until the user
/// slides it away.
class LockScreen : public objc::Implementation<LockScreen, SBLockScreenViewController> {
 public:
  using Implementation::Implementation;
  ~LockScreen();

  void handle_display_turned_off();
  void prepare_for_unlock();
  bool is_locked() const { return locked_; }

  /// Turns the display on again.
  void wake();
  /// Unlocks the phone the way a finger that slides the screen away does.
  void unlock();
  /// Adds a message that arrived while the phone was locked.
  void add(Notification message);
  LockScreenPanel* panel() { return panel_.get(); }

 private:
  void leave();
  void take_down();

  NotificationStore messages_;
  objc::Ref<UIWindow> window_;
  std::unique_ptr<LockScreenPanel> panel_;
  bool locked_ = false;
  int locks_ = 0;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

LockScreen& lock_screen();

void export_lock_screen();

}  // namespace host::springboard
