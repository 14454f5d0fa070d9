#include "host/uikit/text/label.h"

#include <algorithm>
#include <cmath>

#include "host/runtime/device_model.h"
#include "host/uikit/drawing/color.h"
#include "host/uikit/drawing/graphics.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"

namespace host::uikit {
namespace {

constexpr CGFloat kLabelFontSize = 17;
constexpr double kDisabledAlpha = 0.44;
// Below this scale letters are illegible, whatever the label allows.
constexpr double kSmallestScale = 0.1;

bool same(objc::Object left, objc::Object right) {
  return left == right || (left && objc::cast<NSObject>(left).isEqual(right));
}

/// Rounds up to the next whole pixel.
CGFloat pixel_ceil(CGFloat value) {
  const double scale = current_device().scale;
  return std::ceil(value * scale - 1e-6) / scale;
}

CGFloat pixel_floor(CGFloat value) {
  const double scale = current_device().scale;
  return std::floor(value * scale + 1e-6) / scale;
}

void shrink(StyledText& text, double factor) {
  for (TextRun& run : text.runs) {
    run.style.size *= factor;
    run.style.kern *= factor;
  }
}

}  // namespace

UILabel Label::init_with_frame(CGRect frame) {
  super<UILabel>("initWithFrame:"_sel, frame);
  font_.reset(UIFont::systemFontOfSize(kLabelFontSize));
  text_color_.reset(UIColor::blackColor());
  self.setUserInteractionEnabled(NO);
  self.setOpaque(NO);
  self.setContentMode(UIViewContentModeRedraw);
  return self;
}

void Label::set_text(NSString text) {
  // Polling callers set the same title over and over; only a new one has to be drawn.
  if (!attributed_ && same(text_.get(), text)) return;
  attributed_.reset();
  text_ = objc::Ref<NSString>::adopt(text.copy());
  self.setNeedsDisplay();
}

NSAttributedString Label::attributed_text() const {
  if (attributed_ || !text_) return attributed_.get();
  const auto attributes = NSMutableDictionary::dictionary();
  attributes.setObject(font_.get(), NSFontAttributeName);
  attributes.setObject(text_color_.get(), NSForegroundColorAttributeName);
  return NSAttributedString::alloc().initWithString(text_.get(), attributes).autorelease();
}

void Label::set_attributed_text(NSAttributedString text) {
  if (text && same(attributed_.get(), text)) return;
  attributed_ = objc::Ref<NSAttributedString>::adopt(text.copy());
  text_.reset(text.string());
  self.setNeedsDisplay();
}

// A plain property set after attributed text applies to all of the text.
void Label::override_attribute(NSString name, objc::Object value) {
  if (!attributed_ || !value) return;
  const auto text = NSMutableAttributedString::alloc().initWithAttributedString(attributed_.get());
  text.addAttribute(name, value, {0, text.length()});
  attributed_ = objc::Ref<NSAttributedString>::adopt(text);
}

void Label::set_font(UIFont font) {
  const UIFont wanted = font ? font : UIFont::systemFontOfSize(kLabelFontSize);
  if (!attributed_ && same(font_.get(), wanted)) return;
  font_.reset(wanted);
  override_attribute(NSFontAttributeName, wanted);
  self.setNeedsDisplay();
}

void Label::set_text_color(UIColor color) {
  const UIColor wanted = color ? color : UIColor::blackColor();
  if (!attributed_ && same(text_color_.get(), wanted)) return;
  text_color_.reset(wanted);
  override_attribute(NSForegroundColorAttributeName, wanted);
  self.setNeedsDisplay();
}

void Label::set_highlighted_text_color(UIColor color) {
  if (same(highlighted_text_color_.get(), color)) return;
  highlighted_text_color_.reset(color);
  if (highlighted_) self.setNeedsDisplay();
}

TextStyle Label::base_style() const {
  const bool lit = highlighted_ && highlighted_text_color_;
  TextStyle style = style_of(font_.get(), lit ? highlighted_text_color_.get() : text_color_.get());
  if (!enabled_) style.color.alpha *= kDisabledAlpha;
  return style;
}

StyledText Label::styled(const TextFrame& frame) const {
  const TextStyle base = base_style();
  const std::size_t limit = visible_limit(base, frame);
  return attributed_ ? styled_text(attributed_.get(), base, limit)
                     : styled_text(text_.get(), base, limit);
}

TextLayout Label::layout_in(CGSize room, NSInteger lines) const {
  TextFrame frame;
  frame.width = room.width;
  frame.height = room.height;
  frame.lines = static_cast<int>(std::clamp<NSInteger>(lines, 0, 100'000));
  frame.alignment = alignment_;
  frame.break_mode = break_mode_;
  StyledText text = styled(frame);
  if (adjusts_font_size_ && lines == 1 && std::isfinite(room.width)) {
    const double width = TextLayout(text, {}).size().width;
    if (width > room.width)
      shrink(text, std::max({room.width / width, minimum_scale_, kSmallestScale}));
  }
  return TextLayout(text, frame);
}

CGSize Label::size_that_fits(CGSize size) {
  if (!text_.get().length()) return {};
  const bool wraps = lines_ != 1 && size.width > 0;
  const CGSize fitting = layout_in({wraps ? size.width : kUnlimited, kUnlimited}, lines_).size();
  return {pixel_ceil(fitting.width), pixel_ceil(fitting.height)};
}

CGSize Label::intrinsic_content_size() {
  return self.sizeThatFits({});
}

CGRect Label::text_rect(CGRect bounds, NSInteger lines) {
  if (!text_.get().length() || bounds.size.width <= 0) return CGRect(bounds.origin, {});
  // A single line is shown even when the label is lower than the line.
  const CGFloat height = lines == 1 ? kUnlimited : bounds.size.height;
  const CGFloat text_height = layout_in({bounds.size.width, height}, lines).size().height;
  const CGFloat top = bounds.min_y() + (bounds.size.height - text_height) / 2;
  return {bounds.min_x(), pixel_floor(top), bounds.size.width, text_height};
}

void Label::draw_rect(CGRect) {
  self.drawTextInRect(self.bounds());
}

void Label::draw_text_in_rect(CGRect rect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || !text_.get().length() || rect.size.width <= 0) return;
  const CGRect place = self.textRectForBounds(rect, lines_);
  const CGFloat height = lines_ == 1 ? kUnlimited : rect.size.height;
  layout_in({rect.size.width, height}, lines_).draw(drawing, place);
}

void export_label() {
  if (objc_getClass("UILabel")) return;
  objc::ClassBuilder("UILabel", "UIView")
      .state<Label>()
      .method<&Label::init_with_frame>("initWithFrame:")
      .method<&Label::text>("text")
      .method<&Label::set_text>("setText:")
      .method<&Label::attributed_text>("attributedText")
      .method<&Label::set_attributed_text>("setAttributedText:")
      .method<&Label::font>("font")
      .method<&Label::set_font>("setFont:")
      .method<&Label::text_color>("textColor")
      .method<&Label::set_text_color>("setTextColor:")
      .method<&Label::highlighted_text_color>("highlightedTextColor")
      .method<&Label::set_highlighted_text_color>("setHighlightedTextColor:")
      .method<&Label::is_highlighted>("isHighlighted")
      .method<&Label::set_highlighted>("setHighlighted:")
      .method<&Label::is_enabled>("isEnabled")
      .method<&Label::set_enabled>("setEnabled:")
      .method<&Label::alignment>("textAlignment")
      .method<&Label::set_alignment>("setTextAlignment:")
      .method<&Label::break_mode>("lineBreakMode")
      .method<&Label::set_break_mode>("setLineBreakMode:")
      .method<&Label::number_of_lines>("numberOfLines")
      .method<&Label::set_number_of_lines>("setNumberOfLines:")
      .method<&Label::adjusts_font_size>("adjustsFontSizeToFitWidth")
      .method<&Label::set_adjusts_font_size>("setAdjustsFontSizeToFitWidth:")
      .method<&Label::minimum_scale>("minimumScaleFactor")
      .method<&Label::set_minimum_scale>("setMinimumScaleFactor:")
      .method<&Label::size_that_fits>("sizeThatFits:")
      .method<&Label::intrinsic_content_size>("intrinsicContentSize")
      .method<&Label::text_rect>("textRectForBounds:limitedToNumberOfLines:")
      .method<&Label::draw_rect>("drawRect:")
      .method<&Label::draw_text_in_rect>("drawTextInRect:")
      .finish();
}

}  // namespace host::uikit
