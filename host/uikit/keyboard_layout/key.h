#pragma once

#include <string>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// The keys that are shown at one time.
enum class KeyPlane { Letters, Numbers, Symbols };

enum class KeyKind { Character, Space, Return, Backspace, Shift, Plane, Dismiss, Nothing };

struct Key {
  KeyKind kind = KeyKind::Character;
  /// What a character key types, in lower case, as UTF-8.
  std::string text;
  /// What stands on the key; empty for those that are drawn as signs.
  std::string label;
  /// The small letters under a digit of a number pad.
  std::string sublabel;
  /// Where a plane key leads.
  KeyPlane plane = KeyPlane::Letters;
  int row = 0;
  /// Does it stand out because it does what the user has come for?
  bool is_action = false;
  CGRect frame;

  /// Is what it does done by a finger that has slid here from another key?
  bool takes_sliding_finger() const {
    return kind == KeyKind::Character || kind == KeyKind::Space || kind == KeyKind::Return;
  }
};

}  // namespace host::uikit
