#pragma once

#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

/// Returns whether the delegate, which may be nil, implements the message.
inline bool answers(objc::Object delegate, objc::Sel selector) {
  return delegate && objc::cast<NSObject>(delegate).respondsToSelector(selector);
}

}  // namespace host::quartzcore
