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

/// The dark bubble with what can be done with selected text. It points at the text from above, or
/// from below where there is no room.
class CalloutBar : public objc::Implementation<CalloutBar, UICalloutBar> {
 public:
  explicit CalloutBar(UICalloutBar owner) : Implementation(owner) {}

  /// `text` is on the screen.
  void show(std::vector<EditMenuItem> items, CGRect text, CGRect screen);
  const std::vector<EditMenuItem>& items() const { return items_; }
  /// On the screen.
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
  /// Where items begin and the last one ends, from the view's left.
  std::vector<double> edges_;
  std::optional<std::size_t> pressed_;
  double arrow_ = 0;
  bool points_down_ = true;
};

/// Shows the menu for `target`, with those items that it can do now; nothing when it can do none.
void show_edit_menu(NSObject target, CGRect text_on_screen);
void hide_edit_menu();
/// The menu that is shown, or nullptr.
CalloutBar* shown_edit_menu();

void export_edit_menu();

}  // namespace host::uikit
