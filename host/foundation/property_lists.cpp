#include <charconv>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "platform/Foundation/NSPropertyListSerialization.h"

// The desktop's Foundation writes an old text form in the encoding of the process's locale; if this
// encoding lacks a single letter, the file is empty. The platform writes XML in UTF-8, regardless
// of the locale.

namespace host::foundation {
namespace {

constexpr std::size_t kEscapeLength = 6;

/// Returns the UTF-16 unit written as `\UD83C` at the start of `text`.
std::optional<char32_t> escaped_unit(std::string_view text) {
  if (text.size() < kEscapeLength || !text.starts_with("\\U")) return std::nullopt;
  unsigned unit = 0;
  const char* end = text.data() + kEscapeLength;
  if (std::from_chars(text.data() + 2, end, unit, 16).ptr != end) return std::nullopt;
  return unit;
}

/// Returns the character written as two such units at the start of `text`.
std::optional<char32_t> escaped_character(std::string_view text) {
  const auto high = escaped_unit(text);
  if (!high || *high < 0xD800 || *high > 0xDBFF) return std::nullopt;
  const auto low = escaped_unit(text.substr(kEscapeLength));
  if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
  return 0x10000 + ((*high - 0xD800) << 10) + (*low - 0xDC00);
}

/// Decodes characters of four bytes, which Foundation writes to XML as escapes that its own reader
/// does not know.
std::string without_escapes(std::string_view xml) {
  std::string plain;
  while (!xml.empty()) {
    const auto character = escaped_character(xml);
    if (!character) {
      plain += xml.front();
      xml.remove_prefix(1);
      continue;
    }
    for (const int shift : {18, 12, 6, 0}) {
      const auto bits = *character >> shift;
      plain += static_cast<char>(shift == 18 ? 0xF0 | bits : 0x80 | (bits & 0x3F));
    }
    xml.remove_prefix(2 * kEscapeLength);
  }
  return plain;
}

BOOL write_to_file(NSObject self, NSString path, BOOL atomically) {
  const NSData data = NSPropertyListSerialization::dataFromPropertyList(
      self, NSPropertyListXMLFormat_v1_0, nullptr);
  if (!data) return NO;
  const std::string xml = without_escapes({static_cast<const char*>(data.bytes()), data.length()});
  return NSData::dataWithBytes(xml.data(), xml.size()).writeToFile(path, atomically);
}

}  // namespace

void export_property_lists() {
  for (const char* collection : {"NSDictionary", "NSArray"})
    replace_in_family<&write_to_file>(objc_getClass(collection), "writeToFile:atomically:");
}

}  // namespace host::foundation
