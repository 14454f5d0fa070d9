#pragma once

#include "host/screen/held_buttons.h"

struct SDL_KeyboardEvent;

namespace host::screen {

/// The desktop's keyboard (`key_list.h`): some keys are buttons of the phone or shake it. All
/// others are keys of the phone's keyboard.
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
