#pragma once

#include <optional>
#include <vector>

#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"
#include "host/uikit/keyboard_layout/keyboard_traits.h"

namespace host::uikit {

/// The keys of one plane and their frames, in points from the keyboard's top left.
struct KeyboardLayout {
  CGSize size;
  std::vector<Key> keys;
  /// Digits in a grid without gaps, as for phone numbers.
  bool is_number_pad = false;

  /// Returns the key for a finger at this point. The whole board is divided among the keys,
  /// including gaps and margins.
  std::optional<std::size_t> key_at(CGPoint point) const;
  const Key* first_of(KeyKind kind) const;
};

KeyboardLayout make_layout(const BoardMetrics& metrics, KeyPlane plane,
                           const KeyboardTraits& traits);

/// Returns the plane that the keyboard shows first.
KeyPlane first_plane(UIKeyboardType type);

/// Returns the title of the return key.
const char* return_title(UIReturnKeyType type);
/// Returns whether the return key performs an action for which it is highlighted.
bool return_acts(UIReturnKeyType type);

}  // namespace host::uikit
