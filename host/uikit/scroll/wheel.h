#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// A notched wheel turns by notches; a touchpad, or a wheel without notches, by points.
enum class WheelKind { Notched, Precise };

/// How far a notch moves content that has no pages, in points. It turns one page of content that
/// has.
inline constexpr CGFloat kPointsPerNotch = 50;

/// The desktop's wheel turns while the pointer is at this point of the screen. Along each axis it
/// moves the innermost scroll view there that can still move in that direction; positive values
/// show what is further right or below. Returns whether one moves.
bool turn_wheel(CGPoint screen_point, CGPoint by, WheelKind kind);

}  // namespace host::uikit
