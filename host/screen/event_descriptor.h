#pragma once

struct SDL_Window;

namespace host::screen {

/// Returns the descriptor on which the desktop's events arrive, which lets a phone at rest sleep;
/// -1 for a desktop that has none.
int event_descriptor(SDL_Window* window);

}  // namespace host::screen
