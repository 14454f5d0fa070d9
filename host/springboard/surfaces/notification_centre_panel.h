#pragma once

#include <vector>

#include "host/springboard/model/wall_clock.h"
#include "host/springboard/parts/surface_action.h"
#include "host/springboard/surfaces/notification_store.h"

namespace host::springboard {

/// The contents of the notification centre, on dark glass over the whole screen: the day, or the
/// messages received. It is above the screen until it is pulled down.
class NotificationCentrePanel {
 public:
  struct Callbacks {
    SurfaceActions::Pan pan;
    std::function<void()> clear;
  };

  NotificationCentrePanel(UIView window, const WallClock& clock, Callbacks callbacks);
  NotificationCentrePanel(const NotificationCentrePanel&) = delete;
  NotificationCentrePanel& operator=(const NotificationCentrePanel&) = delete;

  UIView sheet() const { return *sheet_; }
  void show(const std::vector<Notification>& messages);
  void show_today();
  void show_messages();
  bool shows_today() const { return !today_->isHidden(); }
  UIButton clear_button() const { return *clear_; }

 private:
  objc::Ref<UIButton> add_tab(NSString title, CGRect frame);
  void add_tabs();
  void add_today(const WallClock& clock);
  void add_messages(std::function<void()> clear);
  void show_tab(bool today);

  objc::Ref<UIView> sheet_;
  objc::Ref<UIView> chosen_;
  objc::Ref<UIButton> today_tab_;
  objc::Ref<UIButton> messages_tab_;
  objc::Ref<UIView> today_;
  objc::Ref<UIView> messages_;
  objc::Ref<UIView> rows_;
  objc::Ref<UIView> header_;
  objc::Ref<UILabel> empty_;
  objc::Ref<UIButton> clear_;
  SurfaceActions actions_;
};

}  // namespace host::springboard
