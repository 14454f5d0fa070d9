#include "host/uikit/keyboard/key_painter.h"

#include <cmath>

#include "host/uikit/keyboard/key_signs.h"
#include "host/uikit/text_layout/text_layout.h"

namespace host::uikit {
namespace {

using quartzcore::Rgba;

constexpr double kCorner = 5;
constexpr double kShadowHeight = 1;
constexpr double kSignSize = 17;
// Letters in a stroke as thin as the platform's, words in its standard face.
constexpr std::string_view kLetterFace = "HelveticaNeue-Light";
constexpr double kDigitSize = 28;
constexpr double kSublabelSize = 10;
constexpr double kSublabelDrop = 15;
constexpr double kDigitLift = 5;

FontFace letter_face() {
  const auto face = face_named(kLetterFace);
  return face ? *face : system_face();
}

}  // namespace

void add_rounded_rect(cairo_t* drawing, CGRect rect, double radius) {
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, rect.max_x() - radius, rect.min_y() + radius, radius, -M_PI_2, 0);
  cairo_arc(drawing, rect.max_x() - radius, rect.max_y() - radius, radius, 0, M_PI_2);
  cairo_arc(drawing, rect.min_x() + radius, rect.max_y() - radius, radius, M_PI_2, M_PI);
  cairo_arc(drawing, rect.min_x() + radius, rect.min_y() + radius, radius, M_PI, 3 * M_PI_2);
  cairo_close_path(drawing);
}

Rgba KeyPainter::fill_of(const Key& key, KeyState state) const {
  const bool is_white = key.kind == KeyKind::Character || key.kind == KeyKind::Space;
  if (is_white) return state == KeyState::Pressed ? look_.function_key : look_.key;
  if (state != KeyState::Resting) return look_.key;
  return key.is_action ? look_.action_key : look_.function_key;
}

Rgba KeyPainter::text_of(const Key& key, KeyState state) const {
  return key.is_action && state == KeyState::Resting ? look_.action_text : look_.text;
}

double KeyPainter::text_size_of(const Key& key) const {
  const bool is_letter = key.kind == KeyKind::Character && key.text != ".com";
  return is_letter ? metrics_.letter_size : metrics_.word_size;
}

void KeyPainter::paint_text(std::string_view text, CGPoint centre, double size,
                            const Rgba& color) const {
  TextStyle style;
  if (size >= metrics_.letter_size) style.face = letter_face();
  style.size = size;
  style.color = color;
  const StyledText styled{std::string(text), {{0, text.size(), style}}, false};
  const TextLayout layout(styled, TextFrame{});
  const FaceMetrics face = uikit::metrics_of(style.face);
  const double baseline = metrics_.to_pixel(centre.y + face.cap_height * size / 2);
  const CGSize extent = layout.size();
  layout.draw(drawing_, {centre.x - extent.width / 2, baseline - face.ascender * size, extent.width,
                         extent.height});
}

void KeyPainter::paint_face(const Key& key, KeyState state) const {
  const CGPoint centre = key.frame.centre();
  quartzcore::set_source(drawing_, text_of(key, state));
  switch (key.kind) {
    case KeyKind::Shift:
      return paint_shift_sign(drawing_, centre, kSignSize,
                              state == KeyState::Locked    ? Ink::Underlined
                              : state == KeyState::Engaged ? Ink::Filled
                                                           : Ink::Outline);
    case KeyKind::Backspace:
      return paint_backspace_sign(drawing_, centre, kSignSize,
                                  state == KeyState::Pressed ? Ink::Filled : Ink::Outline);
    case KeyKind::Dismiss:
      return paint_dismiss_sign(drawing_, centre, kSignSize);
    default:
      return paint_text(key.label, centre, text_size_of(key), text_of(key, state));
  }
}

void KeyPainter::paint(const Key& key, KeyState state) const {
  if (key.kind == KeyKind::Nothing) return;
  CGRect shadow = key.frame;
  shadow.origin.y += kShadowHeight;
  quartzcore::set_source(drawing_, look_.shadow);
  add_rounded_rect(drawing_, shadow, kCorner);
  cairo_fill(drawing_);
  quartzcore::set_source(drawing_, fill_of(key, state));
  add_rounded_rect(drawing_, key.frame, kCorner);
  cairo_fill(drawing_);
  paint_face(key, state);
}

void KeyPainter::paint_cell(const Key& key, KeyState state) const {
  const double line = 1 / metrics_.scale;
  const CGRect& frame = key.frame;
  quartzcore::set_source(drawing_, look_.line);
  cairo_rectangle(drawing_, frame.min_x(), frame.min_y(), frame.size.width, frame.size.height);
  cairo_fill(drawing_);
  const bool lies_back = key.kind != KeyKind::Character;
  const bool is_back = lies_back != (state == KeyState::Pressed);
  quartzcore::set_source(drawing_, is_back ? look_.ground : look_.key);
  const double left = frame.min_x() > 0 ? line : 0;
  cairo_rectangle(drawing_, frame.min_x() + left, frame.min_y() + line, frame.size.width - left,
                  frame.size.height - line);
  cairo_fill(drawing_);
  if (key.kind != KeyKind::Character) return paint_face(key, state);
  CGPoint centre = frame.centre();
  const bool has_letters = !key.sublabel.empty();
  if (has_letters) centre.y -= kDigitLift;
  paint_text(key.label, centre, kDigitSize, look_.text);
  if (has_letters)
    paint_text(key.sublabel, {centre.x, centre.y + kDigitLift + kSublabelDrop}, kSublabelSize,
               look_.text);
}

}  // namespace host::uikit
