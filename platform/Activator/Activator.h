#pragma once

#include "objc/fixed_string.h"

/// The library with the classes of this folder. A process may not have loaded it.
inline constexpr objc::FixedString kActivatorImage = "/usr/lib/libactivator.dylib";
