#pragma once

#include <optional>
#include <vector>

#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"
#include "host/uikit/keyboard_layout/keyboard_traits.h"

namespace host::uikit {

/// The keys of one plane and where they stand, in points from the keyboard's top left.
struct KeyboardLayout {
  CGSize size;
  std::vector<Key> keys;
  /// Digits in a grid without gaps, as for telephone numbers.
  bool is_number_pad = false;

  /// The key that a finger means: the whole board is divided among the keys, gaps and margins too.
  std::optional<std::size_t> key_at(CGPoint point) const;
  const Key* first_of(KeyKind kind) const;
};

KeyboardLayout make_layout(const BoardMetrics& metrics, KeyPlane plane,
                           const KeyboardTraits& traits);

/// The plane that the keyboard comes with.
KeyPlane first_plane(UIKeyboardType type);

/// What stands on the return key.
const char* return_title(UIReturnKeyType type);
/// Does return do something that stands out, so that the key does too?
bool return_acts(UIReturnKeyType type);

}  // namespace host::uikit
