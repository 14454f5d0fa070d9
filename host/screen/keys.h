#pragma once

#include "host/screen/held_buttons.h"

struct SDL_KeyboardEvent;

namespace host::screen {

/// The desktop's keyboard: F1 or Home is the Home button, F2 presses it twice, F3 locks, F4 touches
/// Home twice without pressing it, F5 and F6 change the volume, F7 shakes the phone. All other keys
/// are keys of the phone's keyboard.
class Keys {
 public:
  Keys(Input& input, HeldButtons& buttons) : input_(input), buttons_(buttons) {}

  void handle(const SDL_KeyboardEvent& event);

 private:
  void handle_button(const SDL_KeyboardEvent& event);
  void handle_text_key(const SDL_KeyboardEvent& event);

  Input& input_;
  HeldButtons& buttons_;
};

}  // namespace host::screen
