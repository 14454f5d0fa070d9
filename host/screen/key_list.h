#pragma once

namespace host::screen {

/// One thing that a key does in the window.
struct KeyRow {
  const char* keys;  ///< Alternatives are separated by ", "; the modifier applies to all.
  const char* does;
  const char* mouse;  ///< How a mouse does the same; may be empty.
};

/// What always works.
inline constexpr KeyRow kPhoneKeys[] = {
    {"F1, Home", "the Home button", "click it"},
    {"F2", "Home, pressed twice", "double-click it"},
    {"F3", "the lock button", "click it, at the side or the top"},
    {"F4", "Home, touched twice", "click it with the other button"},
    {"F5, F6", "volume down, up", "click them, at the left"},
    {"F7", "shakes the phone", ""},
    {"Control-G", "the keyboard's own gesture", ""},
    {"F11, Alt-Return", "fills the display, and back", ""},
    {"F12, ?", "the list of keys", ""},
};

/// What works while no text field has the keyboard.
inline constexpr KeyRow kFreeKeys[] = {
    {"Space", "plays or pauses", ""},
    {"Control-Left, Right", "previous, next song", ""},
    {"Control-Up, Down", "volume up, down", ""},
    {"Tab, Shift-Tab", "moves the focus on, back", ""},
    {"Arrows", "move the focus that way", ""},
    {"Return", "taps what has the focus", ""},
    {"Control-F", "types into the search field", "click it"},
    {"Escape", "closes what is open; goes back", ""},
};

/// What only a mouse does.
inline constexpr KeyRow kMouseRows[] = {
    {"Drag", "a finger; pulls from the edges", ""},
    {"Wheel", "scrolls; with Shift, sideways", ""},
    {"Right click", "on an icon: holds it", ""},
};

struct KeyGroup {
  const char* title;
  const KeyRow* first;
  const KeyRow* last;
  const KeyRow* begin() const { return first; }
  const KeyRow* end() const { return last; }
};

inline constexpr KeyGroup kKeyGroups[] = {
    {"The phone", kPhoneKeys, kPhoneKeys + sizeof kPhoneKeys / sizeof *kPhoneKeys},
    {"While no field has the keyboard", kFreeKeys,
     kFreeKeys + sizeof kFreeKeys / sizeof *kFreeKeys},
    {"The mouse", kMouseRows, kMouseRows + sizeof kMouseRows / sizeof *kMouseRows},
};

}  // namespace host::screen
