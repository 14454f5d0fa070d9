#pragma once

#include "objc/abi.h"

extern "C" {
signed char sel_is_mapped(objc::Sel selector);
objc::Sel sel_registerTypedName(const char* name, const char* types);
}

namespace host {

/// A selector as a compiler of Objective-C puts it into a library: until the library's start-up
/// code has run, it has the name where the runtime keeps its number.
struct CompiledSelector {
  const char* name;
  const char* types;
};

/// Empty for a selector that the runtime knows.
inline const CompiledSelector* as_unregistered(objc::Sel selector) {
  if (!selector || sel_is_mapped(selector)) return nullptr;
  return reinterpret_cast<const CompiledSelector*>(selector);
}

}  // namespace host
