#pragma once

#include <memory>
#include <optional>

#include "host/springboard/surfaces/edge_pulls.h"
#include "host/springboard/surfaces/notification_centre_panel.h"
#include "host/springboard/surfaces/sheet_motion.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBNotificationCenterController.h"
#include "platform/SpringBoard/SBNotificationCenterViewController.h"

namespace host::springboard {

/// The notification centre, which comes down from the top edge. While it is closed, nothing of it
/// exists except the messages.
class NotificationCentre
    : public objc::Implementation<NotificationCentre, SBNotificationCenterViewController>,
      public EdgePullTarget {
 public:
  using Implementation::Implementation;
  ~NotificationCentre() override;

  /// Sent by the centre to itself before it shows, for extensions that hook it.
  void host_will_present() {}
  BOOL is_presented() const { return presented_; }

  // The implementation; callers present and dismiss the centre through its controller.
  void present(BOOL animated);
  void dismiss(BOOL animated);
  void close_at_once();
  void add(Notification message);
  void clear();
  NotificationStore& store() { return store_; }
  NotificationCentrePanel* panel() { return panel_.get(); }

  bool can_be_pulled() const override;
  void pull_began(CGPoint start) override;
  void pull_moved(CGPoint point) override;
  void pull_ended(CGPoint point, CGFloat velocity) override;
  void pull_cancelled() override;

 private:
  void bring_in();
  void let_go(CGFloat velocity);
  void panned(UIPanGestureRecognizer pan);
  void settle(Rest rest, CGFloat velocity);

  NotificationStore store_;
  objc::Ref<UIWindow> window_;
  std::unique_ptr<NotificationCentrePanel> panel_;
  std::optional<SheetMotion> motion_;
  /// True when a finger presents it.
  bool is_pulled_ = false;
  /// The downward velocity of the finger that released it, in points per second.
  CGFloat velocity_ = 0;
  BOOL presented_ = NO;
};

NotificationCentre& notification_centre();

void export_notification_centre();

}  // namespace host::springboard
