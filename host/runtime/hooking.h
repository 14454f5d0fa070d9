#pragma once

#include "host/runtime/exported.h"
#include "objc/abi.h"

/// Replaces the implementation of `selector` in `cls` and stores the previous one in `*original`. A
/// method that the class only inherits is added to it, and the original is the inherited one. No-op
/// for a nil class or a selector that the class does not respond to. To replace a class method,
/// pass the metaclass.
SONAVUE_EXPORTED void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                      objc::Imp* original);
