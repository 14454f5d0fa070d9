#include "host/screen/keys.h"

#include <SDL.h>

#include <string>

namespace host::screen {
namespace {

struct KeyName {
  SDL_Keycode key;
  const char* name;
};

constexpr KeyName kKeys[] = {
    {SDLK_RETURN, "return"}, {SDLK_KP_ENTER, "return"}, {SDLK_BACKSPACE, "delete"},
    {SDLK_ESCAPE, "escape"}, {SDLK_TAB, "tab"},         {SDLK_LEFT, "left"},
    {SDLK_RIGHT, "right"},   {SDLK_UP, "up"},           {SDLK_DOWN, "down"},
    {SDLK_END, "end"},
};

// Keys that repeat only for a text field: held down, they act once otherwise.
constexpr KeyName kSingleKeys[] = {
    {SDLK_SPACE, "space"},          {SDLK_AUDIOPLAY, "media-play"},
    {SDLK_AUDIONEXT, "media-next"}, {SDLK_AUDIOPREV, "media-previous"},
    {SDLK_AUDIOSTOP, "media-stop"},
};

// With the control key, letters edit text instead of typing it.
constexpr KeyName kControlKeys[] = {
    {SDLK_a, "a"}, {SDLK_c, "c"}, {SDLK_f, "f"}, {SDLK_g, "g"}, {SDLK_v, "v"}, {SDLK_x, "x"},
};

struct KeyButton {
  SDL_Keycode key;
  Button button;
};

constexpr KeyButton kKeyButtons[] = {
    {SDLK_F1, Button::Home},           {SDLK_HOME, Button::Home},
    {SDLK_F3, Button::Lock},           {SDLK_F5, Button::VolumeDown},
    {SDLK_F6, Button::VolumeUp},       {SDLK_VOLUMEDOWN, Button::VolumeDown},
    {SDLK_VOLUMEUP, Button::VolumeUp},
};

// The buttons that cannot be held.
constexpr KeyButton kPresses[] = {
    {SDLK_F2, Button::HomeDouble},
    {SDLK_F4, Button::HomeTouch},
};

constexpr SDL_Keycode kShake = SDLK_F7;

/// Returns the key's name with the prefixes of its modifiers.
std::string with_modifiers(const char* name, Uint16 held) {
  std::string full;
  if ((held & KMOD_CTRL) != 0) full += "control-";
  if ((held & KMOD_SHIFT) != 0) full += "shift-";
  return full + name;
}

/// Whether a key that is held goes on without a field: the focus moves, and the volume changes.
bool goes_on(SDL_Keycode pressed, Uint16 held) {
  if (pressed == SDLK_UP || pressed == SDLK_DOWN) return true;
  const bool moves = pressed == SDLK_LEFT || pressed == SDLK_RIGHT || pressed == SDLK_TAB;
  return moves && (held & KMOD_CTRL) == 0;
}

}  // namespace

void Keys::handle(const SDL_KeyboardEvent& event) {
  // Key repeat does not press a button again.
  if (event.repeat == 0) handle_button(event);
  if (event.type == SDL_KEYDOWN) handle_text_key(event);
}

void Keys::handle_button(const SDL_KeyboardEvent& event) {
  const SDL_Keycode pressed = event.keysym.sym;
  const bool down = event.type == SDL_KEYDOWN;
  for (const auto& [key, button] : kKeyButtons) {
    if (key != pressed) continue;
    if (down) {
      buttons_.down(button);
    } else {
      buttons_.up(button);
    }
  }
  if (!down) return;
  for (const auto& [key, button] : kPresses) {
    if (key == pressed) input_.press(button);
  }
  if (pressed == kShake) input_.shake();
}

void Keys::handle_text_key(const SDL_KeyboardEvent& event) {
  const SDL_Keycode pressed = event.keysym.sym;
  const Uint16 held = event.keysym.mod;
  for (const auto& [key, name] : kSingleKeys) {
    if (key == pressed && event.repeat == 0) input_.key(with_modifiers(name, held));
  }
  if (event.repeat != 0 && !goes_on(pressed, held) && !input_.caret()) return;
  for (const auto& [key, name] : kKeys) {
    if (key == pressed) input_.key(with_modifiers(name, held));
  }
  if ((held & KMOD_CTRL) == 0) return;
  for (const auto& [key, name] : kControlKeys) {
    if (key == pressed) input_.key(with_modifiers(name, held));
  }
}

}  // namespace host::screen
