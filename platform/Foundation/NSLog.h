#pragma once

#include "objc/abi.h"

/// Variadic, as on the platform: pass the format and every object as bare pointers (`.id()`).
extern "C" void NSLog(objc::Id format, ...);
