#pragma once

#include "objc/object.h"

namespace objc {

/// An instance variable by its name, for the few that classes of the platform leave to others to
/// read and write. Null for nil, and where the object's class has none of that name.
template <class T>
T* field(Object object, const char* name) {
  if (!object) return nullptr;
  const Ivar ivar = class_getInstanceVariable(class_of(object.id()), name);
  if (!ivar) return nullptr;
  return reinterpret_cast<T*>(reinterpret_cast<char*>(object.id()) + ivar_getOffset(ivar));
}

}  // namespace objc
