#include <algorithm>
#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/text_view/text_view.h"

// Where the lines of a text view are, and which of them are drawn.

namespace host::uikit {
namespace {

constexpr CGFloat kCaretWidth = 2;
/// The padding on the left and right of every line.
constexpr CGFloat kLinePadding = 5;

TextLayout break_lines(const EditableText& text, const TextStyle& style, double width,
                       NSTextAlignment alignment) {
  TextFrame frame;
  frame.width = width;
  frame.alignment = alignment;
  return TextLayout(text.styled(style), frame);
}

}  // namespace

CGPoint TextView::text_origin() const {
  return {inset_.left + kLinePadding, inset_.top};
}

double TextView::text_width() {
  const double beside = inset_.left + inset_.right + 2 * kLinePadding;
  return std::max(0.0, self.bounds().size.width - beside);
}

const TextLayout& TextView::layout() {
  const double width = text_width();
  if (layout_ && layout_width_ == width) return *layout_;
  layout_.emplace(break_lines(text_, style_of(font_.get(), text_color_.get()), width, alignment_));
  layout_width_ = width;
  canvas_is_old_ = true;
  return *layout_;
}

CGSize TextView::size_that_fits(CGSize size) {
  const double beside = inset_.left + inset_.right + 2 * kLinePadding;
  const TextLayout fitted = break_lines(text_, style_of(font_.get(), text_color_.get()),
                                        std::max(0.0, size.width - beside), alignment_);
  return {std::min(size.width, std::ceil(fitted.size().width) + beside),
          std::ceil(fitted.size().height) + inset_.top + inset_.bottom};
}

std::size_t TextView::byte_of(std::size_t index) const {
  return utf8_of(text_.text().substringToIndex(index)).size();
}

std::size_t TextView::index_of_byte(std::size_t byte) const {
  const std::string before = utf8_of(text_.text()).substr(0, byte);
  return NSString::stringWithUTF8String(before.c_str()).length();
}

CGRect TextView::caret_rect(std::size_t index) {
  const CGRect place = layout().caret_rect(byte_of(index), text_width());
  const CGPoint origin = text_origin();
  return {on_pixel(origin.x + place.min_x() - kCaretWidth / 2), on_pixel(origin.y + place.min_y()),
          kCaretWidth, place.size.height};
}

std::size_t TextView::index_near(CGPoint point) {
  const CGPoint origin = text_origin();
  return index_of_byte(layout().byte_near({point.x - origin.x, point.y - origin.y}, text_width()));
}

void TextView::layout_subviews() {
  const double height = std::ceil(layout().size().height) + inset_.top + inset_.bottom;
  self.setContentSize({self.bounds().size.width, height});
  if (caret_wants_sight_ && editing_) self.scrollRangeToVisible({text_.caret(), 0});
  caret_wants_sight_ = false;
  super<>("layoutSubviews"_sel);
  UIView::performWithoutAnimation(objc::block([this] { place_canvas(); }));
  show_caret();
}

void TextView::place_canvas() {
  const CGRect visible = self.bounds();
  if (!canvas_is_old_ && canvas_->frame() == visible) return;
  canvas_->setFrame(visible);
  canvas_->setNeedsDisplay();
  canvas_is_old_ = false;
}

void TextView::show_caret() {
  if (!editing_) return caret_.hide();
  const UIColor tint = self.tintColor();
  UIView::performWithoutAnimation(objc::block([this, tint] {
    caret_.show(self, caret_rect(text_.caret()), tint ? tint : UIColor::blueColor());
  }));
}

void TextView::scroll_range_to_visible(NSRange range) {
  const CGRect begin = caret_rect(std::min<std::size_t>(range.location, text_.length()));
  const CGRect end =
      caret_rect(std::min<std::size_t>(range.location + range.length, text_.length()));
  // The margins above the first line and below the last come into sight with those lines.
  const double top = begin.min_y() - inset_.top;
  const double bottom = end.max_y() + inset_.bottom;
  self.scrollRectToVisible({0, top, 1, bottom - top}, NO);
}

void TextView::draw_visible(CGRect visible) {
  cairo_t* drawing = current_drawing();
  if (!drawing) return;
  const CGPoint origin = text_origin();
  cairo_save(drawing);
  cairo_translate(drawing, -visible.min_x(), -visible.min_y());
  layout().draw_between(drawing, {origin.x, origin.y, text_width(), 0}, visible.min_y(),
                        visible.max_y());
  cairo_restore(drawing);
}

}  // namespace host::uikit
