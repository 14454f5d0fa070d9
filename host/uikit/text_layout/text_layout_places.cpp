#include <pango/pangocairo.h>

#include <algorithm>

#include "host/uikit/text_layout/pango_text.h"
#include "host/uikit/text_layout/text_layout.h"

// Positions in text of several lines.

namespace host::uikit {
namespace {

/// Returns the last caret position of a line. The position behind a soft line break is the next
/// line's first one, so the last of this line is before its last character.
const char* last_place(const PangoLayoutLine* line, const char* text) {
  const char* end = text + line->start_index + line->length;
  const bool broken_off = *end != '\0' && *end != '\n' && *end != '\r';
  return broken_off && line->length > 0 ? g_utf8_prev_char(end) : end;
}

}  // namespace

CGRect TextLayout::caret_rect(std::size_t byte, double width) const {
  int index = 0;
  pango_layout_index_to_line_x(layout_.get(), static_cast<int>(byte), FALSE, &index, nullptr);
  const auto number = std::min(static_cast<std::size_t>(index), lines_.size() - 1);
  double top = 0;
  for (std::size_t above = 0; above < number; ++above)
    top += lines_[above].height;
  const Line& line = lines_[number];
  return {left_of(line, width) + caret_position(byte) - left_in_layout(line), top, 0, line.height};
}

// Pango places right-to-left lines to the right of the layout's own width.
double TextLayout::left_in_layout(const Line& line) const {
  if (!line.right_to_left) return 0;
  const int width = pango_layout_get_width(layout_.get());
  return (width < 0 ? size_.width : points_from(width)) - line.width;
}

std::size_t TextLayout::byte_near(CGPoint point, double width) const {
  std::size_t number = 0;
  for (double bottom = lines_[0].height; point.y >= bottom && number + 1 < lines_.size();)
    bottom += lines_[++number].height;
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout_.get(), lines_[number].index);
  int index = 0;
  int trailing = 0;
  pango_layout_line_x_to_index(line, pango_units(point.x - left_of(lines_[number], width)), &index,
                               &trailing);
  const char* text = pango_layout_get_text(layout_.get());
  const char* at = text + index;
  while (trailing-- > 0)
    at = g_utf8_next_char(at);
  at = std::min(at, last_place(line, text));
  return static_cast<std::size_t>(at - text);
}

LinePlaces TextLayout::line_of(std::size_t byte) const {
  int index = 0;
  pango_layout_index_to_line_x(layout_.get(), static_cast<int>(byte), FALSE, &index, nullptr);
  const PangoLayoutLine* line = pango_layout_get_line_readonly(layout_.get(), index);
  const char* text = pango_layout_get_text(layout_.get());
  return {static_cast<std::size_t>(line->start_index),
          static_cast<std::size_t>(last_place(line, text) - text)};
}

}  // namespace host::uikit
