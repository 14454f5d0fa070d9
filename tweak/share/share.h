#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Opens a composer with the playing song in its text. A no-op while no artwork is shown, which is
/// taken to mean that there is no song to share.
void tweet(SpringBoard self);

/// Cancels an open composer without animation, since the panel under it is about to close.
void dismiss_composer();

}  // namespace sonavue
