#pragma once

#include <memory>

#include "host/springboard/surfaces/lock_screen_panel.h"
#include "host/springboard/surfaces/notification_store.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"

namespace host::springboard {

/// Locks the phone when its display goes dark, and lies over everything of the home screen until it
/// is slid away.
class LockScreen : public objc::Implementation<LockScreen, SBLockScreenViewController> {
 public:
  using Implementation::Implementation;
  ~LockScreen();

  void handle_display_turned_off();
  void prepare_for_unlock();
  bool is_locked() const { return locked_; }

  /// The display has been turned on again.
  void wake();
  /// As the finger that slides the screen away does it.
  void unlock();
  /// A message that came while the phone was locked.
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
  /// Ends with this object: an animation may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

LockScreen& lock_screen();

void export_lock_screen();

}  // namespace host::springboard
