#pragma once

#include "objc/send.h"

namespace objc {

/// Returns the object if it is of that class, otherwise nil. For objects that come from outside and
/// may be of any class, such as those read from a file.
template <Handle T>
T kind_of(Object object) {
  return send<BOOL>(object, "isKindOfClass:"_sel, T::cls()) ? cast<T>(object) : T();
}

}  // namespace objc
