#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::social {

enum class ScreenKind { Phone, Tablet };

/// Returns the frame of a composer's card on a screen of that size, in whole points: near the top,
/// clear of the status bar and of the keyboard.
CGRect composer_place(CGSize screen, ScreenKind kind);

}  // namespace host::social
