#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/runtime/countdown.h"
#include "host/runtime/run_loop.h"
#include "host/springboard/model/wall_clock.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The status bar, in its own window: signal, wireless network, time of day, battery. It wakes at
/// most once a minute, when the clock's text changes.
class StatusBar {
 public:
  explicit StatusBar(const WallClock& clock);
  ~StatusBar();
  StatusBar(const StatusBar&) = delete;
  StatusBar& operator=(const StatusBar&) = delete;

  UIWindow window() const { return window_.get(); }
  NSString time_text() const { return time_->text(); }
  /// On the lock screen, which itself shows the time in large type, a padlock replaces the time.
  void set_locked(bool locked);
  /// Makes the contents dark, for an application with a light background. Returns the old value.
  bool set_dark(bool dark);
  /// Shows a few words instead of the time for some seconds. Only pixels: no message is sent that
  /// anything else could hear, and nothing gives way to it.
  void show_notice(NSString words);

 private:
  void add_left_side() const;
  void add_time();
  void add_battery();
  void show_time();
  void update_middle() const;
  void color_contents() const;

  const WallClock& clock_;
  objc::Ref<UIWindow> window_;
  objc::Ref<UILabel> time_;
  objc::Ref<UIImageView> padlock_;
  objc::Ref<UILabel> charge_;
  objc::Ref<UILabel> notice_;
  Countdown notice_ends_;
  bool locked_ = false;
  bool dark_ = false;
  std::optional<RunLoop::Id> next_minute_;
};

/// Puts the status bar on top of the lock screen while the phone is locked.
void set_status_bar_locked(bool locked);
/// Shows a few words to the user; before there is a status bar, as soon as there is one.
void show_status_notice(std::string_view words);
/// Makes it dark over an application with a light background. Returns the old value.
bool set_status_bar_dark(bool dark);

}  // namespace host::springboard
