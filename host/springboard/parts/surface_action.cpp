#include "host/springboard/parts/surface_action.h"

#include <cmath>

#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::springboard {
namespace {

objc::Sel perform() {
  return "perform:"_sel;
}

}  // namespace

SurfaceActions::~SurfaceActions() {
  for (const Made& made : made_) {
    auto& state = objc::state_of<SurfaceAction>(*made.action);
    state.act = nullptr;
    state.receives = nullptr;
    state.begins = nullptr;
    // A finger that is still down keeps its view and that view's recognisers alive longer than the
    // surface.
    made.button->removeTarget(*made.action, perform(), UIControlEventTouchUpInside);
    made.recognizer->removeTarget(*made.action, perform());
    made.recognizer->setDelegate(nil);
    // This destructor may be running inside the action itself.
    objc::Ref<SBSurfaceAction>(made.action).leak().autorelease();
  }
}

SurfaceActions::Made& SurfaceActions::make(std::function<void(objc::Object)> act) {
  Made& made = made_.emplace_back();
  made.action = objc::Ref<SBSurfaceAction>::adopt(SBSurfaceAction::alloc().init());
  objc::state_of<SurfaceAction>(*made.action).act = std::move(act);
  return made;
}

void SurfaceActions::on_press(UIButton button, std::function<void()> act) {
  Made& made = make([act = std::move(act)](objc::Object) { act(); });
  made.button = objc::Ref<UIButton>::retain(button);
  button.addTarget(*made.action, perform(), UIControlEventTouchUpInside);
}

void SurfaceActions::on_tap(UIView view, std::function<void()> act) {
  Made& made = make([act = std::move(act)](objc::Object) { act(); });
  made.recognizer = objc::Ref<UIGestureRecognizer>::adopt(
      UITapGestureRecognizer::alloc().initWithTarget(*made.action, perform()));
  view.addGestureRecognizer(*made.recognizer);
}

void SurfaceActions::on_pan(UIView view, Pan act, Receives receives) {
  Made& made = make([act = std::move(act)](objc::Object sender) {
    act(objc::cast<UIPanGestureRecognizer>(sender));
  });
  objc::state_of<SurfaceAction>(*made.action).receives = std::move(receives);
  made.recognizer = objc::Ref<UIGestureRecognizer>::adopt(
      UIPanGestureRecognizer::alloc().initWithTarget(*made.action, perform()));
  made.recognizer->setDelegate(*made.action);
  view.addGestureRecognizer(*made.recognizer);
}

void SurfaceActions::on_upright_pan(UIView view, Pan act) {
  on_pan(view, std::move(act));
  objc::state_of<SurfaceAction>(*made_.back().action).begins = [](UIGestureRecognizer pan) {
    const CGPoint way = objc::cast<UIPanGestureRecognizer>(pan).translationInView(nil);
    return std::abs(way.y) > std::abs(way.x);
  };
}

void export_surface_action() {
  if (SBSurfaceAction::cls()) return;
  objc::ClassBuilder("SBSurfaceAction", "NSObject")
      .state<SurfaceAction>()
      .method<&SurfaceAction::perform>("perform:")
      .method<&SurfaceAction::should_receive>("gestureRecognizer:shouldReceiveTouch:")
      .method<&SurfaceAction::should_begin>("gestureRecognizerShouldBegin:")
      .finish();
}

}  // namespace host::springboard
