#pragma once

#include <cairo.h>

#include <limits>
#include <memory>
#include <vector>

#include "host/uikit/text_layout/styled_text.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UITextEnumerations.h"

typedef struct _PangoLayout PangoLayout;

namespace host::uikit {

struct UnreferenceLayout {
  void operator()(PangoLayout* layout) const;
};
using LayoutPointer = std::unique_ptr<PangoLayout, UnreferenceLayout>;

inline constexpr double kUnlimited = std::numeric_limits<double>::infinity();

/// How text fills the available space; lengths are in points.
struct TextFrame {
  double width = kUnlimited;
  double height = kUnlimited;
  /// 0 means as many as fit the height.
  int lines = 0;
  NSTextAlignment alignment = NSTextAlignmentLeft;
  NSLineBreakMode break_mode = NSLineBreakByWordWrapping;
};

/// The first and the last byte of a line before which a caret can be.
struct LinePlaces {
  std::size_t first = 0;
  std::size_t last = 0;
};

/// Text that has been shaped and broken into lines. Lines have the height of their own fonts, by
/// the platform's metrics, whatever fallback fonts supply missing characters.
class TextLayout {
 public:
  TextLayout(const StyledText& text, const TextFrame& frame);

  /// The size of all lines together, in points, not rounded; at least one line tall.
  CGSize size() const { return size_; }
  int line_count() const { return static_cast<int>(lines_.size()); }
  bool is_truncated() const { return truncated_; }

  /// Draws the first line at the top of `rect`, aligned within its width.
  void draw(cairo_t* drawing, CGRect rect) const;
  /// The same, but skips lines that lie wholly above `from` or below `to`.
  void draw_between(cairo_t* drawing, CGRect rect, double from, double to) const;

  /// Returns the caret's distance from the left of the line, before the byte; for text of one line.
  double caret_position(std::size_t byte) const;
  /// Returns the byte before which a caret at this distance from the left is.
  std::size_t byte_at(double x) const;

  /// Returns the caret's place before the byte, in text of several lines drawn with this width: its
  /// left edge, and the top and height of its line. The rectangle has no width.
  CGRect caret_rect(std::size_t byte, double width) const;
  /// Returns the byte of the caret position nearest to a point of such text.
  std::size_t byte_near(CGPoint point, double width) const;
  LinePlaces line_of(std::size_t byte) const;

 private:
  struct Line {
    int index;
    double height;
    double ascender;
    double width;
    bool right_to_left;
  };

  void measure_lines(const StyledText& text, const TextFrame& frame);
  double left_of(const Line& line, double width) const;
  double left_in_layout(const Line& line) const;

  LayoutPointer layout_;
  std::vector<Line> lines_;
  NSTextAlignment alignment_;
  CGSize size_;
  bool truncated_ = false;
};

/// Returns how many UTF-16 units can be visible at most in such a frame; the rest need not be
/// shaped.
std::size_t visible_limit(const TextStyle& style, const TextFrame& frame);

}  // namespace host::uikit
