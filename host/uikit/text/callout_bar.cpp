#include <algorithm>
#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text_layout/text_layout.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UITouch.h"

// Drawing of the menu over a text, and the finger that chooses from it.

namespace host::uikit {
namespace {

using quartzcore::Rgba;

constexpr double kHeight = 36;
constexpr double kArrowHeight = 9;
constexpr double kArrowHalf = 9;
constexpr double kCorner = 8;
constexpr double kPadding = 13;
constexpr double kTextSize = 14;
constexpr double kEdge = 6;
constexpr double kGap = 3;
constexpr Rgba kGround{0.11, 0.11, 0.12, 0.96};
constexpr Rgba kPressed{0.36, 0.36, 0.38, 1};
constexpr Rgba kLine{0.45, 0.45, 0.47, 1};
constexpr Rgba kText{1, 1, 1, 1};
// The status bar lies above this.
constexpr double kTop = 20;

TextLayout layout_of(const std::string& title) {
  TextStyle style;
  style.size = kTextSize;
  style.color = kText;
  return {StyledText{title, {{0, title.size(), style}}, false}, TextFrame{}};
}

}  // namespace

void CalloutBar::show(std::vector<EditMenuItem> items, CGRect text, CGRect screen) {
  items_ = std::move(items);
  edges_ = {0};
  for (const EditMenuItem& item : items_)
    edges_.push_back(edges_.back() + std::ceil(layout_of(item.title).size().width) + 2 * kPadding);
  const double width = edges_.back();
  const double height = kHeight + kArrowHeight;
  points_down_ = text.min_y() - kGap - height >= kTop;
  const double top = points_down_ ? text.min_y() - kGap - height : text.max_y() + kGap;
  const double left = std::clamp(text.centre().x - width / 2, kEdge,
                                 std::max(kEdge, screen.size.width - kEdge - width));
  self.setFrame({on_pixel(left), on_pixel(top), width, height});
  const double reach = kCorner + kArrowHalf;
  arrow_ = std::clamp(text.centre().x - left, reach, std::max(reach, width - reach));
  self.setOpaque(NO);
  self.setNeedsDisplay();
}

CGPoint CalloutBar::centre_of(std::size_t item) const {
  const double top = points_down_ ? 0 : kArrowHeight;
  return to_screen(self, {(edges_[item] + edges_[item + 1]) / 2, top + kHeight / 2});
}

void CalloutBar::add_outline(cairo_t* drawing) const {
  const double right = edges_.back();
  const double top = points_down_ ? 0 : kArrowHeight;
  const double bottom = top + kHeight;
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, kCorner, top + kCorner, kCorner, M_PI, 3 * M_PI_2);
  if (!points_down_) {
    cairo_line_to(drawing, arrow_ - kArrowHalf, top);
    cairo_line_to(drawing, arrow_, 0);
    cairo_line_to(drawing, arrow_ + kArrowHalf, top);
  }
  cairo_arc(drawing, right - kCorner, top + kCorner, kCorner, -M_PI_2, 0);
  cairo_arc(drawing, right - kCorner, bottom - kCorner, kCorner, 0, M_PI_2);
  if (points_down_) {
    cairo_line_to(drawing, arrow_ + kArrowHalf, bottom);
    cairo_line_to(drawing, arrow_, bottom + kArrowHeight);
    cairo_line_to(drawing, arrow_ - kArrowHalf, bottom);
  }
  cairo_arc(drawing, kCorner, bottom - kCorner, kCorner, M_PI_2, M_PI);
  cairo_close_path(drawing);
}

void CalloutBar::draw_rect(CGRect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || items_.empty()) return;
  cairo_save(drawing);
  add_outline(drawing);
  cairo_clip(drawing);
  quartzcore::set_source(drawing, kGround);
  cairo_paint(drawing);
  const double top = points_down_ ? 0 : kArrowHeight;
  const double line = hairline();
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const double left = edges_[i];
    const double width = edges_[i + 1] - left;
    if (pressed_ == i) {
      quartzcore::set_source(drawing, kPressed);
      cairo_rectangle(drawing, left, 0, width, kHeight + kArrowHeight);
      cairo_fill(drawing);
    }
    if (i > 0) {
      quartzcore::set_source(drawing, kLine);
      cairo_rectangle(drawing, left, top, line, kHeight);
      cairo_fill(drawing);
    }
    const TextLayout title = layout_of(items_[i].title);
    const CGSize size = title.size();
    title.draw(drawing, {on_pixel(left + (width - size.width) / 2),
                         on_pixel(top + (kHeight - size.height) / 2), size.width, size.height});
  }
  cairo_restore(drawing);
}

std::optional<std::size_t> CalloutBar::item_at(CGPoint point) const {
  if (point.y < 0 || point.y > kHeight + kArrowHeight) return std::nullopt;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    if (point.x >= edges_[i] && point.x < edges_[i + 1]) return i;
  }
  return std::nullopt;
}

void CalloutBar::press(std::optional<std::size_t> item) {
  if (pressed_ == item) return;
  pressed_ = item;
  self.setNeedsDisplay();
}

void CalloutBar::touches_began(NSSet touches, UIEvent) {
  press(item_at(objc::cast<UITouch>(touches.anyObject()).locationInView(self)));
}
void CalloutBar::touches_moved(NSSet touches, UIEvent) {
  press(item_at(objc::cast<UITouch>(touches.anyObject()).locationInView(self)));
}
void CalloutBar::touches_cancelled(NSSet, UIEvent) {
  press(std::nullopt);
}

void CalloutBar::touches_ended(NSSet touches, UIEvent) {
  const auto item = item_at(objc::cast<UITouch>(touches.anyObject()).locationInView(self));
  press(std::nullopt);
  if (!item) return;
  const objc::Sel action = items_[*item].action;
  const UIResponder target = first_responder();
  hide_edit_menu();
  if (target.respondsToSelector(action)) objc::send<>(target, action, objc::Object(self));
}

void export_edit_menu() {
  if (UICalloutBar::cls()) return;
  objc::ClassBuilder("UICalloutBar", "UIView")
      .state<CalloutBar>()
      .method<&CalloutBar::draw_rect>("drawRect:")
      .method<&CalloutBar::touches_began>("touchesBegan:withEvent:")
      .method<&CalloutBar::touches_moved>("touchesMoved:withEvent:")
      .method<&CalloutBar::touches_ended>("touchesEnded:withEvent:")
      .method<&CalloutBar::touches_cancelled>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::uikit
