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

/// The target of a button or a recogniser that calls a function.
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

/// The actions of one surface, which nothing calls any more once this has ended.
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
  /// `receives` says which touches count; all do when there is none.
  void on_pan(UIView view, Pan act, Receives receives = {});
  /// Of pans that begin upwards or downwards; those to the side are left to others.
  void on_upright_pan(UIView view, Pan act);

 private:
  /// An action and who calls it; one of the two is there.
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
