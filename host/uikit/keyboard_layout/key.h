#pragma once

#include <string>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// The sets of keys, of which one is shown at a time.
enum class KeyPlane { Letters, Numbers, Symbols };

enum class KeyKind { Character, Space, Return, Backspace, Shift, Plane, Dismiss, Nothing };

struct Key {
  KeyKind kind = KeyKind::Character;
  /// What a character key types, in lower case, as UTF-8.
  std::string text;
  /// The text on the key; empty for keys drawn as symbols.
  std::string label;
  /// The small letters below a digit of a number pad.
  std::string sublabel;
  /// The plane that a plane key shows.
  KeyPlane plane = KeyPlane::Letters;
  int row = 0;
  /// Whether the key is highlighted because it performs the action that the user came for.
  bool is_action = false;
  CGRect frame;

  /// Returns whether a finger that has slid here from another key activates the key.
  bool takes_sliding_finger() const {
    return kind == KeyKind::Character || kind == KeyKind::Space || kind == KeyKind::Return;
  }
};

}  // namespace host::uikit
