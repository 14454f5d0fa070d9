#pragma once

#include "platform/Foundation/NSString.h"

/// The time in seconds on the media clock, which animations and display links run on.
extern "C" double CACurrentMediaTime();

// The platform's string constants, written out here.
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
