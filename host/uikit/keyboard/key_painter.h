#pragma once

#include <cairo.h>

#include "host/uikit/keyboard/keyboard_look.h"
#include "host/uikit/keyboard_layout/board_metrics.h"
#include "host/uikit/keyboard_layout/key.h"

namespace host::uikit {

enum class KeyState {
  Resting,
  Pressed,
  /// A shift key that is on for the next letter, or locked.
  Engaged,
  Locked,
};

/// Draws single keys on a context in the keyboard's points.
class KeyPainter {
 public:
  KeyPainter(cairo_t* drawing, const BoardMetrics& metrics, const KeyboardLook& look)
      : drawing_(drawing), metrics_(metrics), look_(look) {}

  void paint(const Key& key, KeyState state) const;
  /// Draws a key of a number pad, which fills its cell.
  void paint_cell(const Key& key, KeyState state) const;

  /// Draws a line of text with the middle of its capitals at `centre`.
  void paint_text(std::string_view text, CGPoint centre, double size,
                  const KeyboardLook::Rgba& color) const;

 private:
  KeyboardLook::Rgba fill_of(const Key& key, KeyState state) const;
  KeyboardLook::Rgba text_of(const Key& key, KeyState state) const;
  void paint_face(const Key& key, KeyState state) const;
  double text_size_of(const Key& key) const;

  cairo_t* drawing_;
  const BoardMetrics& metrics_;
  const KeyboardLook& look_;
};

/// Adds a rounded rectangle to the context's path.
void add_rounded_rect(cairo_t* drawing, CGRect rect, double radius);

}  // namespace host::uikit
