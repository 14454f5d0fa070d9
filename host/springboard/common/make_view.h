#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::springboard {

/// Creates a view of the given class, owned by the caller.
template <objc::Handle View>
objc::Ref<View> make_view(CGRect frame) {
  return objc::Ref<View>::adopt(objc::cast<View>(View::alloc().initWithFrame(frame)));
}

}  // namespace host::springboard
