#include "host/springboard/processes/application_view.h"

#include <vector>

#include "host/springboard/common/make_view.h"

namespace host::springboard {

using application::FingerPhase;

objc::Ref<SBHostedApplicationView> ApplicationView::make(
    CGRect frame, std::weak_ptr<ApplicationProcess> process) {
  auto made = make_view<SBHostedApplicationView>(frame);
  auto& state = objc::state_of<ApplicationView>(*made);
  state.process_ = std::move(process);
  made->setMultipleTouchEnabled(YES);
  made->setHidden(YES);
  state.show_picture();
  return made;
}

void ApplicationView::show_picture() const {
  const auto process = process_.lock();
  const CGImageRef picture = process ? process->picture() : nullptr;
  if (!picture) return;
  self.layer().setContents(picture);
  self.setHidden(NO);
}

int ApplicationView::number_of(UITouch touch) {
  int free = 0;
  for (const auto& [number, down] : fingers_) {
    if (*down == touch) return number;
    if (number == free) ++free;
  }
  fingers_[free] = objc::Ref<UITouch>::retain(touch);
  return free;
}

void ApplicationView::send(int finger, FingerPhase phase, CGPoint point, double time) const {
  if (const auto process = process_.lock())
    process->send(application::FingerChange{finger, phase, point.x, point.y, time});
}

void ApplicationView::pass_on(NSSet touches, FingerPhase phase) {
  for (const UITouch touch : touches.allObjects().of<UITouch>()) {
    const int finger = number_of(touch);
    send(finger, phase, touch.locationInView(self), touch.timestamp());
    if (phase == FingerPhase::Ended || phase == FingerPhase::Cancelled) fingers_.erase(finger);
  }
}

void ApplicationView::cancel_fingers() {
  for (const auto& [finger, touch] : fingers_)
    send(finger, FingerPhase::Cancelled, touch->locationInView(self), RunLoop::main().now());
  fingers_.clear();
}

bool ApplicationView::turn_wheel(const application::WheelTurn& turn) const {
  const auto process = process_.lock();
  if (process) process->send(turn);
  return static_cast<bool>(process);
}

void ApplicationView::touches_began(NSSet touches, UIEvent) {
  pass_on(touches, FingerPhase::Began);
}

void ApplicationView::touches_moved(NSSet touches, UIEvent) {
  pass_on(touches, FingerPhase::Moved);
}

void ApplicationView::touches_ended(NSSet touches, UIEvent) {
  pass_on(touches, FingerPhase::Ended);
}

void ApplicationView::touches_cancelled(NSSet touches, UIEvent) {
  pass_on(touches, FingerPhase::Cancelled);
}

void export_application_view() {
  objc::ClassBuilder("SBHostedApplicationView", "UIView")
      .state<ApplicationView>()
      .method<&ApplicationView::touches_began>("touchesBegan:withEvent:")
      .method<&ApplicationView::touches_moved>("touchesMoved:withEvent:")
      .method<&ApplicationView::touches_ended>("touchesEnded:withEvent:")
      .method<&ApplicationView::touches_cancelled>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::springboard
