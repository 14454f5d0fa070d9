#include <algorithm>
#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/text/clear_button.h"
#include "host/uikit/text/text_field.h"
#include "platform/UIKit/UIBezierPath.h"

// Where the parts of a text field are, and how they are drawn.

namespace host::uikit {
namespace {

constexpr CGFloat kBorderMargin = 7;
constexpr CGFloat kBorderRadius = 5;
constexpr CGFloat kCaretWidth = 2;
constexpr CGFloat kClearButtonSide = 19;
constexpr CGFloat kClearButtonMargin = 4;

CGRect centred(CGFloat left, CGSize size, CGRect bounds) {
  return {left, bounds.min_y() + (bounds.size.height - size.height) / 2, size.width, size.height};
}

/// Returns the line's rectangle in `rect`: vertically centred, on whole pixels.
CGRect line_rect(CGRect rect, CGFloat height) {
  const CGFloat top = on_pixel(rect.min_y() + (rect.size.height - height) / 2);
  return {rect.min_x(), top, rect.size.width, height};
}

void draw_rounded_border(CGRect bounds) {
  cairo_t* drawing = current_drawing();
  const CGFloat line = hairline();
  const CGRect edge(line / 2, line / 2, bounds.size.width - line, bounds.size.height - line);
  const auto path = UIBezierPath::bezierPathWithRoundedRect(edge, kBorderRadius);
  if (!drawing) return;
  UIColor::whiteColor().setFill();
  path.fill();
  UIColor::colorWithWhite(0.8, 1).setStroke();
  path.setLineWidth(line);
  path.stroke();
}

}  // namespace

bool TextField::shows(UITextFieldViewMode mode) const {
  switch (mode) {
    case UITextFieldViewModeAlways:
      return true;
    case UITextFieldViewModeWhileEditing:
      return editing_;
    case UITextFieldViewModeUnlessEditing:
      return !editing_;
    default:
      return false;
  }
}

bool TextField::shows_clear_button() const {
  return shows(clear_mode_) && has_text() && !(right_ && shows(right_mode_));
}

CGRect TextField::left_view_rect(CGRect bounds) {
  return centred(bounds.min_x(), left_->frame().size, bounds);
}

CGRect TextField::right_view_rect(CGRect bounds) {
  const CGSize size = right_->frame().size;
  return centred(bounds.max_x() - size.width, size, bounds);
}

CGRect TextField::clear_button_rect(CGRect bounds) {
  return centred(bounds.max_x() - kClearButtonSide - kClearButtonMargin,
                 {kClearButtonSide, kClearButtonSide}, bounds);
}

CGRect TextField::text_rect(CGRect bounds) {
  const CGFloat margin = border_style_ == UITextBorderStyleNone ? 0 : kBorderMargin;
  CGFloat left = bounds.min_x() + margin;
  CGFloat right = bounds.max_x() - margin;
  if (left_ && shows(left_mode_)) left = std::max(left, self.leftViewRectForBounds(bounds).max_x());
  if (right_ && shows(right_mode_))
    right = std::min(right, self.rightViewRectForBounds(bounds).min_x());
  if (shows_clear_button()) right = std::min(right, self.clearButtonRectForBounds(bounds).min_x());
  return {left, bounds.min_y(), std::max(0.0, right - left), bounds.size.height};
}

CGRect TextField::editing_rect(CGRect bounds) {
  return self.textRectForBounds(bounds);
}

CGRect TextField::placeholder_rect(CGRect bounds) {
  return self.textRectForBounds(bounds);
}

CGSize TextField::size_that_fits(CGSize) {
  const CGFloat line = std::ceil(font_->lineHeight());
  const CGFloat border = border_style_ == UITextBorderStyleNone ? 0 : kBorderMargin;
  const CGFloat beside = left_ && shows(left_mode_) ? left_->frame().size.width : 0;
  return {std::ceil(layout_contents().size().width) + kCaretWidth + beside + 2 * border,
          line + border};
}

CGSize TextField::intrinsic_content_size() {
  return self.sizeThatFits({});
}

void TextField::place_side_view(UIView view, bool shown, CGRect frame) {
  if (!shown) return view.removeFromSuperview();
  if (view.superview() != self) self.addSubview(view);
  view.setFrame(frame);
}

void TextField::place_clear_button() {
  const bool shown = shows_clear_button();
  if (shown && !clear_button_) clear_button_.reset(make_clear_button(self));
  if (clear_button_)
    place_side_view(clear_button_.get(), shown, self.clearButtonRectForBounds(self.bounds()));
}

void TextField::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGRect bounds = self.bounds();
  if (left_) place_side_view(left_.get(), shows(left_mode_), self.leftViewRectForBounds(bounds));
  if (right_)
    place_side_view(right_.get(), shows(right_mode_), self.rightViewRectForBounds(bounds));
  place_clear_button();
  update_caret();
}

TextLayout TextField::layout_contents() const {
  TextFrame frame;
  frame.lines = 1;
  return TextLayout(styled_contents(), frame);
}

double TextField::offset_of(const TextLayout& layout, std::size_t index) const {
  return layout.caret_position(utf8_of(text_->substringToIndex(index)).size());
}

double TextField::caret_offset(const TextLayout& layout) const {
  return offset_of(layout, caret_index_);
}

double TextField::text_origin(CGRect rect, const TextLayout& layout) {
  const double room = rect.size.width - kCaretWidth;
  const double width = layout.size().width;
  if (width <= room) {
    scrolled_ = 0;
    if (alignment_ == NSTextAlignmentCenter) return rect.min_x() + (room - width) / 2;
    if (alignment_ == NSTextAlignmentRight) return rect.max_x() - kCaretWidth - width;
    return rect.min_x();
  }
  const double caret = editing_ ? caret_offset(layout) : 0;
  scrolled_ = std::clamp(scrolled_, caret - room, caret);
  scrolled_ = std::clamp(scrolled_, 0.0, width - room);
  return rect.min_x() - scrolled_;
}

void TextField::update_caret() {
  if (!editing_) return caret_.hide();
  const CGRect rect = self.editingRectForBounds(self.bounds());
  const TextLayout layout = layout_contents();
  const CGFloat origin = text_origin(rect, layout);
  const CGRect line = line_rect(rect, layout.size().height);
  const UIColor tint = self.tintColor() ? self.tintColor() : UIColor::blueColor();
  const CGFloat edge = on_pixel(origin + caret_offset(layout));
  if (selection().length == 0) {
    marks_.hide();
    return caret_.show(self, {edge, line.min_y(), kCaretWidth, line.size.height}, tint);
  }
  caret_.hide();
  const CGFloat other = on_pixel(origin + offset_of(layout, anchor_index_));
  const CGRect selected(std::min(edge, other), line.min_y(), std::abs(edge - other),
                        line.size.height);
  marks_.show(self, selected, rect, tint, this);
}

void TextField::draw_rect(CGRect) {
  const CGRect bounds = self.bounds();
  if (border_style_ == UITextBorderStyleRoundedRect) draw_rounded_border(bounds);
  if (has_text()) {
    self.drawTextInRect(editing_ ? self.editingRectForBounds(bounds)
                                 : self.textRectForBounds(bounds));
  } else {
    self.drawPlaceholderInRect(self.placeholderRectForBounds(bounds));
  }
}

void TextField::draw_text_in_rect(CGRect rect) {
  cairo_t* drawing = current_drawing();
  if (!drawing) return;
  const TextLayout layout = layout_contents();
  const CGRect line = line_rect(rect, layout.size().height);
  cairo_save(drawing);
  cairo_rectangle(drawing, rect.min_x(), rect.min_y(), rect.size.width, rect.size.height);
  cairo_clip(drawing);
  layout.draw(drawing,
              {text_origin(rect, layout), line.min_y(), layout.size().width, line.size.height});
  cairo_restore(drawing);
}

void TextField::draw_placeholder_in_rect(CGRect rect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || !placeholder_) return;
  TextFrame frame;
  frame.width = rect.size.width;
  frame.lines = 1;
  frame.alignment = alignment_;
  frame.break_mode = NSLineBreakByTruncatingTail;
  const TextLayout layout(styled_placeholder(), frame);
  layout.draw(drawing, line_rect(rect, layout.size().height));
}

}  // namespace host::uikit
