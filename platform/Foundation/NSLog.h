#pragma once

#include "objc/abi.h"

/// Variadic on the platform too: the format and every object are passed as bare pointers (`.id()`).
extern "C" void NSLog(objc::Id format, ...);
