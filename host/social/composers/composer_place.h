#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::social {

enum class ScreenKind { Phone, Tablet };

/// Where a composer's card stands on a screen of that size, in points: near the top, clear of the
/// status bar and of the keyboard, on whole points.
CGRect composer_place(CGSize screen, ScreenKind kind);

}  // namespace host::social
