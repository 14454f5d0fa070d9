#pragma once

#include "objc/send.h"

namespace objc {

/// The object where it is of that class, else nil: for what somebody else has written, which may be
/// anything.
template <Handle T>
T kind_of(Object object) {
  return send<BOOL>(object, "isKindOfClass:"_sel, T::cls()) ? cast<T>(object) : T();
}

}  // namespace objc
