#pragma once

#include <optional>

#include "host/runtime/run_loop.h"
#include "host/springboard/model/wall_clock.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The status bar in a window of its own: signal, wireless network, time of day, battery. It wakes
/// once a minute and only when the clock's text will change.
class StatusBar {
 public:
  explicit StatusBar(const WallClock& clock);
  ~StatusBar();
  StatusBar(const StatusBar&) = delete;
  StatusBar& operator=(const StatusBar&) = delete;

  UIWindow window() const { return window_.get(); }
  NSString time_text() const { return time_->text(); }
  /// Over the lock screen, which shows the time in large, a padlock stands in its place.
  void set_locked(bool locked);
  /// Dark on an application's light ground. Gives what it was.
  bool set_dark(bool dark);

 private:
  void add_left_side() const;
  void add_time();
  void add_battery();
  void show_time();
  void color_contents() const;

  const WallClock& clock_;
  objc::Ref<UIWindow> window_;
  objc::Ref<UILabel> time_;
  objc::Ref<UIImageView> padlock_;
  objc::Ref<UILabel> charge_;
  bool locked_ = false;
  bool dark_ = false;
  std::optional<RunLoop::Id> next_minute_;
};

/// The status bar lies on the lock screen while the phone is locked.
void set_status_bar_locked(bool locked);
/// It is dark over an application with a light screen. Gives what it was.
bool set_status_bar_dark(bool dark);

}  // namespace host::springboard
