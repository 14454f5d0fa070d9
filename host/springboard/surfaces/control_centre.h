#pragma once

#include <memory>
#include <optional>

#include "host/springboard/surfaces/control_centre_panel.h"
#include "host/springboard/surfaces/edge_pulls.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBControlCenterContainerView.h"
#include "platform/SpringBoard/SBControlCenterController.h"

namespace host::springboard {

/// The control centre, which comes up from the bottom edge. While it is closed, nothing of it
/// exists except the container that extensions know.
class ControlCentre : public objc::Implementation<ControlCentre, SBControlCenterController>,
                      public EdgePullTarget {
 public:
  using Implementation::Implementation;
  ~ControlCentre() override;

  void present_animated(BOOL animated);
  void dismiss_animated(BOOL animated);
  BOOL is_presented() const { return presented_; }
  UIView sheet() const { return panel_ ? panel_->sheet() : UIView(); }

  bool can_be_pulled() const override;
  void pull_began(CGPoint start) override;
  void pull_moved(CGPoint point) override;
  void pull_ended(CGPoint point, CGFloat velocity) override;
  void pull_cancelled() override;

 private:
  /// Returns false when an observer dismissed it as soon as it was notified.
  bool bring_in();
  void let_go(CGFloat velocity);
  void panned(UIPanGestureRecognizer pan);
  void settle(Rest rest, CGFloat velocity);
  void rested(Rest rest);
  void take_down();

  objc::Ref<UIWindow> window_;
  objc::Ref<SBControlCenterContainerView> view_;
  std::unique_ptr<ControlCentrePanel> panel_;
  std::optional<SheetMotion> motion_;
  CGFloat pulled_from_ = 0;
  /// True when a finger presents it.
  bool is_pulled_ = false;
  /// The downward velocity of the finger that released it, in points per second.
  CGFloat velocity_ = 0;
  BOOL presented_ = NO;
};

void export_control_centre_view();
void export_control_centre();

}  // namespace host::springboard
