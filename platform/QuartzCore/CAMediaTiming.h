#pragma once

#include "platform/Foundation/NSString.h"

/// Seconds on the media clock: the clock on which animations and display links run.
extern "C" double CACurrentMediaTime();

// The platform's string constants; on this side they are plain constant strings.
inline NSString kCAFillModeRemoved() {
  return "removed"_ns;
}
inline NSString kCAFillModeForwards() {
  return "forwards"_ns;
}
inline NSString kCAFillModeBackwards() {
  return "backwards"_ns;
}
inline NSString kCAFillModeBoth() {
  return "both"_ns;
}
