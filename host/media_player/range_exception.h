#pragma once

#include "platform/Foundation/NSString.h"

namespace host::media_player {

/// Throws the platform's range exception. Does not return.
void raise_range_exception(const char* what, NSUInteger index, NSUInteger count);

}  // namespace host::media_player
