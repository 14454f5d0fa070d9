#pragma once

struct SDL_Window;

namespace host::screen {

/// Draws the window's icon and gives it to the desktop.
void set_window_icon(SDL_Window* window);

}  // namespace host::screen
