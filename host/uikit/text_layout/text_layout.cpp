#include "host/uikit/text_layout/text_layout.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

#include "host/uikit/text_layout/pango_text.h"

namespace host::uikit {
namespace {

// The smallest average width of a letter, in font sizes: more letters than fit at this width are
// not visible.
constexpr double kNarrowestAverage = 0.2;
// Allows for characters that take several units or have no width.
constexpr std::size_t kUnitsPerCharacter = 4;
constexpr std::size_t kFewestUnits = 64;
// Tolerance for comparing widths rounded to Pango's units.
constexpr double kRoundingRoom = 1.0 / 512;
// How much wider than requested an ellipsized line may be, since its letters end on whole pixels.
constexpr double kEllipsisRoom = 1;

double line_height_of(const TextStyle& style) {
  const FaceMetrics metrics = metrics_of(style.face);
  return (metrics.ascender - metrics.descender + metrics.leading) * style.size;
}

double ascender_of(const TextStyle& style) {
  return metrics_of(style.face).ascender * style.size;
}

PangoEllipsizeMode ellipsize_mode(NSLineBreakMode mode) {
  switch (mode) {
    case NSLineBreakByTruncatingHead:
      return PANGO_ELLIPSIZE_START;
    case NSLineBreakByTruncatingMiddle:
      return PANGO_ELLIPSIZE_MIDDLE;
    case NSLineBreakByTruncatingTail:
      return PANGO_ELLIPSIZE_END;
    default:
      return PANGO_ELLIPSIZE_NONE;
  }
}

/// Returns how many lines fit the frame; 0 for no limit.
int line_limit(const StyledText& text, const TextFrame& frame) {
  int limit = frame.lines;
  if (!text.runs.empty() && std::isfinite(frame.height)) {
    const double height = line_height_of(text.runs.front().style);
    const int fitting = std::max(1, static_cast<int>(frame.height / height + kRoundingRoom));
    limit = limit ? std::min(limit, fitting) : fitting;
  }
  return limit;
}

void set_limits(PangoLayout* layout, const TextFrame& frame, int limit) {
  if (!std::isfinite(frame.width)) return;
  const bool clips = frame.break_mode == NSLineBreakByClipping;
  if (clips && limit == 1) return;
  pango_layout_set_width(layout, pango_units(std::max(frame.width, 0.0) + kRoundingRoom));
  pango_layout_set_wrap(layout, frame.break_mode == NSLineBreakByCharWrapping
                                    ? PANGO_WRAP_CHAR
                                    : PANGO_WRAP_WORD_CHAR);
  if (!limit) return;
  pango_layout_set_ellipsize(layout, ellipsize_mode(frame.break_mode));
  pango_layout_set_height(layout, -limit);
}

/// An ellipsis that does not fit would show less than the text itself. The text is then drawn as it
/// is, as far as it is visible.
void drop_ellipsis_that_does_not_fit(PangoLayout* layout, const TextFrame& frame, int limit) {
  if (limit != 1 || !pango_layout_is_ellipsized(layout)) return;
  PangoRectangle extents;
  pango_layout_line_get_extents(pango_layout_get_line_readonly(layout, 0), nullptr, &extents);
  if (points_from(extents.width) <= frame.width + kEllipsisRoom) return;
  pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_NONE);
  pango_layout_set_width(layout, -1);
}

}  // namespace

void UnreferenceLayout::operator()(PangoLayout* layout) const {
  g_object_unref(layout);
}

TextLayout::TextLayout(const StyledText& text, const TextFrame& frame)
    : layout_(make_pango_layout(text)), alignment_(frame.alignment) {
  const int limit = line_limit(text, frame);
  set_limits(layout_.get(), frame, limit);
  drop_ellipsis_that_does_not_fit(layout_.get(), frame, limit);
  measure_lines(text, frame);
}

void TextLayout::measure_lines(const StyledText& text, const TextFrame& frame) {
  const int limit = line_limit(text, frame);
  const int count = pango_layout_get_line_count(layout_.get());
  const int shown = limit ? std::min(count, limit) : count;
  const GSList* next = pango_layout_get_lines_readonly(layout_.get());
  for (int index = 0; index < shown; ++index, next = next->next) {
    auto* line = static_cast<PangoLayoutLine*>(next->data);
    PangoRectangle extents;
    pango_layout_line_get_extents(line, nullptr, &extents);
    const auto begin = static_cast<std::size_t>(line->start_index);
    const auto end = begin + static_cast<std::size_t>(line->length);
    Line made{index, 0, 0, points_from(extents.width),
              pango_layout_line_get_resolved_direction(line) == PANGO_DIRECTION_RTL};
    for (const TextRun& run : text.runs) {
      const bool touches = run.begin < end && run.end > begin;
      if (!touches && !(begin == end && run.begin <= begin && run.end >= begin)) continue;
      made.height = std::max(made.height, line_height_of(run.style));
      made.ascender = std::max(made.ascender, ascender_of(run.style));
    }
    size_.width = std::max(size_.width, made.width);
    size_.height += made.height;
    lines_.push_back(made);
  }
  truncated_ = shown < count || text.is_cut || pango_layout_is_ellipsized(layout_.get());
}

double TextLayout::left_of(const Line& line, double width) const {
  const bool to_right = alignment_ == NSTextAlignmentRight ||
                        (alignment_ >= NSTextAlignmentJustified && line.right_to_left);
  if (to_right) return width - line.width;
  if (alignment_ == NSTextAlignmentCenter) return (width - line.width) / 2;
  return 0;
}

void TextLayout::draw(cairo_t* drawing, CGRect rect) const {
  draw_between(drawing, rect, -kUnlimited, kUnlimited);
}

void TextLayout::draw_between(cairo_t* drawing, CGRect rect, double from, double to) const {
  double top = rect.min_y();
  for (const Line& line : lines_) {
    if (top >= to) return;
    if (top + line.height <= from) {
      top += line.height;
      continue;
    }
    const double left = rect.min_x() + left_of(line, rect.size.width);
    cairo_move_to(drawing, left, top + line.ascender);
    pango_cairo_show_layout_line(drawing,
                                 pango_layout_get_line_readonly(layout_.get(), line.index));
    top += line.height;
  }
}

double TextLayout::caret_position(std::size_t byte) const {
  PangoRectangle strong;
  pango_layout_get_cursor_pos(layout_.get(), static_cast<int>(byte), &strong, nullptr);
  return points_from(strong.x);
}

std::size_t TextLayout::byte_at(double x) const {
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout_.get(), 0);
  int index = 0;
  int trailing = 0;
  pango_layout_line_x_to_index(line, pango_units(x), &index, &trailing);
  const char* at = pango_layout_get_text(layout_.get()) + index;
  while (trailing-- > 0)
    at = g_utf8_next_char(at);
  return static_cast<std::size_t>(at - pango_layout_get_text(layout_.get()));
}

std::size_t visible_limit(const TextStyle& style, const TextFrame& frame) {
  double lines = frame.lines;
  if (std::isfinite(frame.height)) {
    const double fitting = std::floor(frame.height / line_height_of(style)) + 1;
    lines = lines > 0 ? std::min(lines, fitting) : fitting;
  }
  if (lines <= 0 || !std::isfinite(frame.width)) return kWholeText;
  const double a_line = std::max(frame.width, 0.0) / (kNarrowestAverage * style.size);
  const double units = a_line * lines * kUnitsPerCharacter;
  // Truncating the head or the middle needs the end of the text.
  const bool needs_end = frame.break_mode == NSLineBreakByTruncatingHead ||
                         frame.break_mode == NSLineBreakByTruncatingMiddle;
  if (needs_end || units > 1e9) return kWholeText;
  return static_cast<std::size_t>(units) + kFewestUnits;
}

}  // namespace host::uikit
