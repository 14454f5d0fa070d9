#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Opens a composer with the playing song in its text. Without an artwork nothing has been shown
/// yet, and there is nothing to share.
void tweet(SpringBoard self);

}  // namespace sonavue
