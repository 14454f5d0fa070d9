#pragma once

struct SDL_Window;

namespace host::screen {

/// The descriptor on which the desktop's events arrive, so that a phone at rest can sleep; -1 for a
/// desktop that has none.
int event_descriptor(SDL_Window* window);

}  // namespace host::screen
