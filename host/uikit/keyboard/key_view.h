#pragma once

#include "host/uikit/keyboard/key_painter.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

struct UIKBKeyView : objc::Bound<UIKBKeyView, "UIKBKeyView", UIView> {};

/// One key drawn over the keyboard's picture while it looks different, so the keyboard itself is
/// not redrawn.
class KeyView : public objc::Implementation<KeyView, UIKBKeyView> {
 public:
  explicit KeyView(UIKBKeyView owner) : Implementation(owner) {}

  void show(const Key& key, KeyState state);
  void draw_rect(CGRect);

  const BoardMetrics* metrics = nullptr;
  const KeyboardLook* look = nullptr;
  bool is_cell = false;

 private:
  Key key_;
  KeyState state_ = KeyState::Resting;
};

void export_key_view();

}  // namespace host::uikit
