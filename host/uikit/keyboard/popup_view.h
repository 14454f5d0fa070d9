#pragma once

#include <string>
#include <vector>

#include "host/uikit/keyboard/key_painter.h"
#include "host/uikit/keyboard/popup_shape.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

struct UIKBKeyPopupView : objc::Bound<UIKBKeyPopupView, "UIKBKeyPopupView", UIView> {};

/// Shows the letter above the finger that covers it, or the letter's accents to choose from.
class PopupView : public objc::Implementation<PopupView, UIKBKeyPopupView> {
 public:
  explicit PopupView(UIKBKeyPopupView owner) : Implementation(owner) {}

  void show(const PopupShape& shape, std::vector<std::string> letters);
  void choose(std::size_t index);
  void draw_rect(CGRect);

  const PopupShape& shape() const { return shape_; }
  const std::string& chosen() const { return letters_[chosen_]; }

  const BoardMetrics* metrics = nullptr;
  const KeyboardLook* look = nullptr;

 private:
  void paint_balloon(cairo_t* drawing) const;
  void paint_letters(const KeyPainter& painter, cairo_t* drawing) const;

  PopupShape shape_;
  std::vector<std::string> letters_;
  std::size_t chosen_ = 0;
};

void export_popup_view();

}  // namespace host::uikit
