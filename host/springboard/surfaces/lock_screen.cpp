#include "host/springboard/surfaces/lock_screen.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/status_bar/status_bar.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/responder.h"

namespace host::springboard {
namespace {

constexpr double kUnlocking = 0.4;

}  // namespace

LockScreen::~LockScreen() {
  take_down();
}

void LockScreen::handle_display_turned_off() {
  SharedPart<Display>::get().turn_off();
  uikit::end_text_input();
  if (locked_) {
    panel_->sleep();
    return;
  }
  take_down();
  locked_ = true;
  ++locks_;
  close_surfaces_at_once();
  window_ = make_view<UIWindow>(UIScreen::mainScreen().bounds());
  window_->setWindowLevel(kLockScreenLevel);
  panel_ = std::make_unique<LockScreenPanel>(*window_, *configuration().wall_clock,
                                             [this] { unlock(); });
  panel_->show(messages_.all());
  window_->setHidden(NO);
  set_status_bar_locked(true);
}

void LockScreen::wake() {
  SharedPart<Display>::get().turn_on();
  if (locked_) panel_->wake();
}

void LockScreen::unlock() {
  if (!display().is_on()) wake();
  uikit::cancel_every_touch();
  self.prepareForUIUnlock();
}

void LockScreen::add(Notification message) {
  messages_.add(std::move(message));
  if (!panel_) return;
  panel_->show(messages_.all());
  wake();
}

void LockScreen::prepare_for_unlock() {
  if (!locked_) return;
  locked_ = false;
  messages_.clear();
  set_status_bar_locked(false);
  leave();
}

void LockScreen::leave() {
  panel_->sleep();
  const UIView view = panel_->view();
  view.setUserInteractionEnabled(NO);
  const CGRect screen = view.bounds();
  const auto gone = objc::block([this, lock = locks_, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && lock == locks_) take_down();
  });
  UIView::animateWithDuration(kUnlocking, objc::block([=] {
                                view.setFrame({{screen.size.width * 0.6, 0}, screen.size});
                                view.setAlpha(0);
                              }),
                              gone);
}

void LockScreen::take_down() {
  panel_.reset();
  if (window_) window_->setHidden(YES);
  window_.reset();
}

LockScreen& lock_screen() {
  return objc::state_of<LockScreen>(SharedInstance<SBLockScreenViewController>::get());
}

void export_lock_screen() {
  objc::ClassBuilder("SBLockScreenViewController", "UIViewController")
      .state<LockScreen>()
      .method<&LockScreen::handle_display_turned_off>("_handleDisplayTurnedOff")
      .method<&LockScreen::prepare_for_unlock>("prepareForUIUnlock")
      .finish();
}

}  // namespace host::springboard
