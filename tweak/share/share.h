#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Opens a composer with the playing song in its text. A no-op without artwork, when no song has
/// been shown yet.
void tweet(SpringBoard self);

/// Cancels an open composer without animation, since the panel under it is about to close.
void dismiss_composer();

}  // namespace sonavue
