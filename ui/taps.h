#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace sonavue {

/// Makes a tap on the view send `action` to `target`.
inline void add_tap(UIView view, objc::Object target, objc::Sel action) {
  const auto tap = objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(target, action));
  view.addGestureRecognizer(tap);
}

}  // namespace sonavue
