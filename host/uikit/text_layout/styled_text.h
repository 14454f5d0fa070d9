#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "host/quartzcore/drawing/color.h"
#include "host/uikit/drawing/font_face.h"
#include "platform/Foundation/NSAttributedString.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIFont.h"

namespace host::uikit {

/// The style of a stretch of text. Colours with alpha 0 are not drawn.
struct TextStyle {
  FontFace face = system_face();
  double size = 17;
  quartzcore::Rgba color{0, 0, 0, 1};
  quartzcore::Rgba background{0, 0, 0, 0};
  /// Points added between characters.
  double kern = 0;
  bool underline = false;
};

/// A stretch of bytes in one style.
struct TextRun {
  std::size_t begin = 0;
  std::size_t end = 0;
  TextStyle style;
};

/// Valid UTF-8, divided into contiguous runs. Invalid characters of the source appear as U+FFFD.
struct StyledText {
  std::string bytes;
  std::vector<TextRun> runs;
  /// Whether the source was longer than the requested limit.
  bool is_cut = false;
};

inline constexpr std::size_t kWholeText = std::numeric_limits<std::size_t>::max();

/// Returns the style for a font and colour; nil means the system font at 17 points, and black.
TextStyle style_of(UIFont font, UIColor color);

/// Returns at most about `limit` UTF-16 units of the text, cut between whole characters.
StyledText styled_text(NSString text, const TextStyle& style, std::size_t limit = kWholeText);
/// `base` supplies the style where an attribute is missing.
StyledText styled_text(NSAttributedString text, const TextStyle& base,
                       std::size_t limit = kWholeText);

/// Returns the text as UTF-8.
std::string utf8_of(NSString text);

}  // namespace host::uikit
