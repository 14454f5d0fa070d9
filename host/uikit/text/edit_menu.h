#pragma once

#include <cairo.h>

#include <optional>
#include <string>
#include <vector>

#include "host/uikit/text/effects_window.h"
#include "objc/ref.h"

namespace host::uikit {

struct UICalloutBar : objc::Bound<UICalloutBar, "UICalloutBar", UIView> {};

struct EditMenuItem {
  std::string title;
  objc::Sel action;
};

/// The dark bubble with the actions for the selected text. It points at the text from above, or
/// from below when there is no room above.
class CalloutBar : public objc::Implementation<CalloutBar, UICalloutBar> {
 public:
  explicit CalloutBar(UICalloutBar owner) : Implementation(owner) {}

  /// `text` is in screen coordinates.
  void show(std::vector<EditMenuItem> items, CGRect text, CGRect screen);
  const std::vector<EditMenuItem>& items() const { return items_; }
  /// In screen coordinates.
  CGPoint centre_of(std::size_t item) const;

  void draw_rect(CGRect);
  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  std::optional<std::size_t> item_at(CGPoint point) const;
  void press(std::optional<std::size_t> item);
  void add_outline(cairo_t* drawing) const;

  std::vector<EditMenuItem> items_;
  /// The left edges of the items and the right edge of the last, from the view's left.
  std::vector<double> edges_;
  std::optional<std::size_t> pressed_;
  double arrow_ = 0;
  bool points_down_ = true;
};

/// Shows the menu for `target`, with the items whose actions it can perform now; does nothing when
/// it can perform none.
void show_edit_menu(NSObject target, CGRect text_on_screen);
void hide_edit_menu();
/// Returns the menu that is shown, or nullptr.
CalloutBar* shown_edit_menu();

void export_edit_menu();

}  // namespace host::uikit
