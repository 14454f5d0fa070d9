#pragma once

#include "objc/fixed_string.h"

/// The framework with the classes of this folder. A process may not have loaded it.
inline constexpr objc::FixedString kMessageUIImage =
    "/System/Library/Frameworks/MessageUI.framework/MessageUI";
