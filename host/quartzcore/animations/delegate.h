#pragma once

#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

/// Does a delegate, which may be nil, answer the message?
inline bool answers(objc::Object delegate, objc::Sel selector) {
  return delegate && objc::cast<NSObject>(delegate).respondsToSelector(selector);
}

}  // namespace host::quartzcore
