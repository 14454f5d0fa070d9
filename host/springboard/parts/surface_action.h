#pragma once

#include <functional>
#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"

namespace host::springboard {

struct SBSurfaceAction : objc::Bound<SBSurfaceAction, "SBSurfaceAction", NSObject> {};

/// The target of a button or a recogniser; calls a function.
class SurfaceAction : public objc::Implementation<SurfaceAction, SBSurfaceAction> {
 public:
  using Implementation::Implementation;

  void perform(objc::Object sender) {
    if (act) act(sender);
  }
  BOOL should_receive(UIGestureRecognizer, UITouch touch) {
    return !receives || receives(touch) ? YES : NO;
  }
  BOOL should_begin(UIGestureRecognizer recognizer) {
    return !begins || begins(recognizer) ? YES : NO;
  }

  std::function<void(objc::Object)> act;
  std::function<bool(UITouch)> receives;
  std::function<bool(UIGestureRecognizer)> begins;
};

/// The actions of one surface. None of them is called after this object is destroyed.
class SurfaceActions {
 public:
  using Pan = std::function<void(UIPanGestureRecognizer)>;
  using Receives = std::function<bool(UITouch)>;

  SurfaceActions() = default;
  ~SurfaceActions();
  SurfaceActions(const SurfaceActions&) = delete;
  SurfaceActions& operator=(const SurfaceActions&) = delete;

  void on_press(UIButton button, std::function<void()> act);
  void on_tap(UIView view, std::function<void()> act);
  /// `receives` decides which touches count; when it is empty, all do.
  void on_pan(UIView view, Pan act, Receives receives = {});
  /// Calls `act` for pans that begin upwards or downwards; sideways ones are left to others.
  void on_upright_pan(UIView view, Pan act);

 private:
  /// An action and the object that calls it: either the button or the recogniser.
  struct Made {
    objc::Ref<SBSurfaceAction> action;
    objc::Ref<UIButton> button;
    objc::Ref<UIGestureRecognizer> recognizer;
  };
  Made& make(std::function<void(objc::Object)> act);

  std::vector<Made> made_;
};

void export_surface_action();

}  // namespace host::springboard
