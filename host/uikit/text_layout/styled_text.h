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

/// How a stretch of text looks. Colours with alpha 0 are not drawn.
struct TextStyle {
  FontFace face = system_face();
  double size = 17;
  quartzcore::Rgba color{0, 0, 0, 1};
  quartzcore::Rgba background{0, 0, 0, 0};
  /// Points added between characters.
  double kern = 0;
  bool underline = false;
};

/// A stretch of bytes of one style.
struct TextRun {
  std::size_t begin = 0;
  std::size_t end = 0;
  TextStyle style;
};

/// UTF-8 that is always valid, cut into runs that follow each other without gaps. What could not
/// be a character in the source stands as U+FFFD.
struct StyledText {
  std::string bytes;
  std::vector<TextRun> runs;
  /// Was the source longer than asked for?
  bool is_cut = false;
};

inline constexpr std::size_t kWholeText = std::numeric_limits<std::size_t>::max();

/// The style of a font and colour; nil means the system font at 17 points, and black.
TextStyle style_of(UIFont font, UIColor color);

/// At most about `limit` UTF-16 units of the text, cut between whole characters.
StyledText styled_text(NSString text, const TextStyle& style, std::size_t limit = kWholeText);
/// `base` is the style where an attribute is missing.
StyledText styled_text(NSAttributedString text, const TextStyle& base,
                       std::size_t limit = kWholeText);

/// As UTF-8, alone.
std::string utf8_of(NSString text);

}  // namespace host::uikit
