#include "host/uikit/text_layout/styled_text.h"

#include <algorithm>

#include "host/basics/utf16.h"
#include "host/runtime/text_bytes.h"
#include "host/uikit/drawing/color.h"
#include "host/uikit/drawing/font.h"
#include "host/uikit/text_layout/characters.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"

namespace host::uikit {
namespace {

std::vector<unichar> units_of(NSString text, NSRange range) {
  std::vector<unichar> units(range.length);
  if (range.length) objc::send<>(text, "getCharacters:range:"_sel, units.data(), range);
  return units;
}

std::size_t length_within(NSString text, std::size_t limit) {
  return text.length() <= limit ? text.length() : character_start(text, limit);
}

void apply(NSDictionary attributes, TextStyle& style) {
  const auto font = objc::cast<UIFont>(attributes.objectForKey(NSFontAttributeName));
  const auto color = objc::cast<UIColor>(attributes.objectForKey(NSForegroundColorAttributeName));
  const auto behind = objc::cast<UIColor>(attributes.objectForKey(NSBackgroundColorAttributeName));
  const auto kern = objc::cast<NSNumber>(attributes.objectForKey(NSKernAttributeName));
  const auto underline =
      objc::cast<NSNumber>(attributes.objectForKey(NSUnderlineStyleAttributeName));
  if (font) {
    style.face = objc::state_of<Font>(font).face();
    style.size = font.pointSize();
  }
  if (color) style.color = components_of(color);
  if (behind) style.background = components_of(behind);
  if (kern) style.kern = kern.doubleValue();
  if (underline) style.underline = underline.integerValue() != 0;
}

void append_run(StyledText& styled, NSString text, NSRange range, const TextStyle& style) {
  const std::size_t begin = styled.bytes.size();
  utf16::append_utf8(styled.bytes, units_of(text, range));
  styled.runs.push_back({begin, styled.bytes.size(), style});
}

}  // namespace

TextStyle style_of(UIFont font, UIColor color) {
  TextStyle style;
  if (font) {
    style.face = objc::state_of<Font>(font).face();
    style.size = font.pointSize();
  }
  if (color) style.color = components_of(color);
  return style;
}

StyledText styled_text(NSString text, const TextStyle& style, std::size_t limit) {
  StyledText styled;
  const std::size_t length = length_within(text, limit);
  styled.is_cut = length < text.length();
  append_run(styled, text, {0, length}, style);
  return styled;
}

StyledText styled_text(NSAttributedString text, const TextStyle& base, std::size_t limit) {
  StyledText styled;
  const NSString plain = text.string();
  const std::size_t length = length_within(plain, limit);
  styled.is_cut = length < plain.length();
  for (std::size_t at = 0; at < length;) {
    NSRange range;
    const NSDictionary attributes = text.attributesAtIndex(at, &range);
    const std::size_t end = std::min(range.location + range.length, length);
    TextStyle style = base;
    apply(attributes, style);
    append_run(styled, plain, {at, end - at}, style);
    at = end;
  }
  if (styled.runs.empty()) styled.runs.push_back({0, 0, base});
  return styled;
}

std::string utf8_of(NSString text) {
  return host::utf8_of(text);
}

}  // namespace host::uikit
