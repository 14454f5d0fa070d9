#pragma once

#include "platform/Foundation/NSString.h"

namespace host::media_player {

/// Throws the exception of this system for what lies beyond an end. Does not return.
void raise_range_exception(const char* what, NSUInteger index, NSUInteger count);

}  // namespace host::media_player
