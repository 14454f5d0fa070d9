#include "host/springboard/surfaces/surface_action.h"

#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::springboard {

SurfaceActions::~SurfaceActions() {
  for (const auto& action : made_) {
    auto& state = objc::state_of<SurfaceAction>(*action);
    state.act = nullptr;
    state.receives = nullptr;
    // A touch that is under way may hold the recogniser a little longer.
    objc::Ref<SBSurfaceAction>(action).leak().autorelease();
  }
}

SBSurfaceAction SurfaceActions::make(std::function<void(objc::Object)> act) {
  made_.push_back(objc::Ref<SBSurfaceAction>::adopt(SBSurfaceAction::alloc().init()));
  objc::state_of<SurfaceAction>(*made_.back()).act = std::move(act);
  return *made_.back();
}

void SurfaceActions::on_press(UIButton button, std::function<void()> act) {
  const auto action = make([act = std::move(act)](objc::Object) { act(); });
  button.addTarget(action, "perform:"_sel, UIControlEventTouchUpInside);
}

void SurfaceActions::on_tap(UIView view, std::function<void()> act) {
  const auto action = make([act = std::move(act)](objc::Object) { act(); });
  const auto tap = objc::Ref<UITapGestureRecognizer>::adopt(
      UITapGestureRecognizer::alloc().initWithTarget(action, "perform:"_sel));
  view.addGestureRecognizer(*tap);
}

void SurfaceActions::on_pan(UIView view, Pan act, Receives receives) {
  const auto action = make([act = std::move(act)](objc::Object sender) {
    act(objc::cast<UIPanGestureRecognizer>(sender));
  });
  objc::state_of<SurfaceAction>(action).receives = std::move(receives);
  const auto pan = objc::Ref<UIPanGestureRecognizer>::adopt(
      UIPanGestureRecognizer::alloc().initWithTarget(action, "perform:"_sel));
  pan->setDelegate(action);
  view.addGestureRecognizer(*pan);
}

void export_surface_action() {
  objc::ClassBuilder("SBSurfaceAction", "NSObject")
      .state<SurfaceAction>()
      .method<&SurfaceAction::perform>("perform:")
      .method<&SurfaceAction::should_receive>("gestureRecognizer:shouldReceiveTouch:")
      .finish();
}

}  // namespace host::springboard
