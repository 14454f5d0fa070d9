#include "host/uikit/keyboard/key_view.h"

#include "host/uikit/drawing/graphics.h"

namespace host::uikit {
namespace {

// Space for the shadow below the key.
constexpr double kRoomBelow = 2;

}  // namespace

void KeyView::show(const Key& key, KeyState state) {
  key_ = key;
  state_ = state;
  CGRect frame = key.frame;
  if (!is_cell) frame.size.height += kRoomBelow;
  key_.frame.origin = {0, 0};
  self.setFrame(frame);
  self.setOpaque(NO);
  self.setUserInteractionEnabled(NO);
  self.setNeedsDisplay();
}

void KeyView::draw_rect(CGRect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || !metrics) return;
  const KeyPainter painter(drawing, *metrics, *look);
  if (is_cell) {
    painter.paint_cell(key_, state_);
  } else {
    painter.paint(key_, state_);
  }
}

void export_key_view() {
  if (UIKBKeyView::cls()) return;
  objc::ClassBuilder("UIKBKeyView", "UIView")
      .state<KeyView>()
      .method<&KeyView::draw_rect>("drawRect:")
      .finish();
}

}  // namespace host::uikit
