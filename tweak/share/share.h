#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Opens a composer with the playing song in its text. Without an artwork nothing has been shown
/// yet, and there is nothing to share.
void tweet(SpringBoard self);

/// Cancels a composer that is up, at once: the panel under it is about to go.
void take_composer_down();

}  // namespace sonavue
