#pragma once

#include "objc/object.h"

namespace objc {

/// Returns a pointer to the object's instance variable with that name, for the few that other code
/// reads and writes directly. Null if the object is nil or its class has no such variable.
template <class T>
T* field(Object object, const char* name) {
  if (!object) return nullptr;
  const Ivar ivar = class_getInstanceVariable(class_of(object.id()), name);
  if (!ivar) return nullptr;
  return reinterpret_cast<T*>(reinterpret_cast<char*>(object.id()) + ivar_getOffset(ivar));
}

}  // namespace objc
