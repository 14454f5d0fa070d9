#include "host/uikit/keyboard/popup_view.h"

#include "host/uikit/drawing/graphics.h"

namespace host::uikit {
namespace {

// Space for the shadow around the balloon.
constexpr double kMargin = 6;
constexpr double kPreviewSize = 1.6;
constexpr double kAccentSize = 1.05;
constexpr double kChosenCorner = 5;
constexpr double kChosenInset = 5;
// The shadow consists of a few faint lines of growing width.
constexpr int kShadowLines = 4;
constexpr double kShadowAlpha = 0.045;
constexpr double kEdgeAlpha = 0.16;

}  // namespace

void PopupView::show(const PopupShape& shape, std::vector<std::string> letters) {
  shape_ = shape;
  letters_ = std::move(letters);
  chosen_ = 0;
  const CGRect bounds = shape.bounds();
  self.setFrame({bounds.min_x() - kMargin, bounds.min_y() - kMargin,
                 bounds.size.width + 2 * kMargin, bounds.size.height + 2 * kMargin});
  self.setOpaque(NO);
  self.setUserInteractionEnabled(NO);
  self.setNeedsDisplay();
}

void PopupView::choose(std::size_t index) {
  if (chosen_ == index) return;
  chosen_ = index;
  self.setNeedsDisplay();
}

void PopupView::paint_balloon(cairo_t* drawing) const {
  cairo_save(drawing);
  cairo_set_line_join(drawing, CAIRO_LINE_JOIN_ROUND);
  shape_.add_outline(drawing);
  for (int line = kShadowLines; line > 0; --line) {
    quartzcore::set_source(drawing, {0, 0, 0, kShadowAlpha});
    cairo_set_line_width(drawing, 2.0 * line);
    cairo_stroke_preserve(drawing);
  }
  quartzcore::set_source(drawing, {0, 0, 0, kEdgeAlpha});
  cairo_set_line_width(drawing, 1);
  cairo_stroke_preserve(drawing);
  cairo_new_path(drawing);
  // The key's lower line stays where it is when not pressed.
  cairo_translate(drawing, 0, 1);
  quartzcore::set_source(drawing, look->shadow);
  shape_.add_outline(drawing);
  cairo_fill(drawing);
  cairo_translate(drawing, 0, -1);
  quartzcore::set_source(drawing, look->key);
  shape_.add_outline(drawing);
  cairo_fill(drawing);
  cairo_restore(drawing);
}

void PopupView::paint_letters(const KeyPainter& painter, cairo_t* drawing) const {
  if (letters_.size() == 1) {
    const CGPoint centre{shape_.head.centre().x, shape_.head.centre().y + 2};
    return painter.paint_text(letters_[0], centre, metrics->letter_size * kPreviewSize, look->text);
  }
  for (std::size_t i = 0; i < letters_.size(); ++i) {
    const CGRect cell = shape_.cell(i);
    const bool chosen = i == chosen_;
    if (chosen) {
      quartzcore::set_source(drawing, look->chosen);
      add_rounded_rect(drawing,
                       {cell.min_x(), cell.min_y() + kChosenInset, cell.size.width,
                        cell.size.height - 2 * kChosenInset},
                       kChosenCorner);
      cairo_fill(drawing);
    }
    painter.paint_text(letters_[i], cell.centre(), metrics->letter_size * kAccentSize,
                       chosen ? look->chosen_text : look->text);
  }
}

void PopupView::draw_rect(CGRect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || !metrics) return;
  const CGPoint origin = self.frame().origin;
  cairo_save(drawing);
  cairo_translate(drawing, -origin.x, -origin.y);
  paint_balloon(drawing);
  paint_letters(KeyPainter(drawing, *metrics, *look), drawing);
  cairo_restore(drawing);
}

void export_popup_view() {
  if (UIKBKeyPopupView::cls()) return;
  objc::ClassBuilder("UIKBKeyPopupView", "UIView")
      .state<PopupView>()
      .method<&PopupView::draw_rect>("drawRect:")
      .finish();
}

}  // namespace host::uikit
