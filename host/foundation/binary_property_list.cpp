#include "host/foundation/binary_property_list.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDate.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

// The desktop's Foundation reads the binary form only from data, not from files, and follows the
// offsets of a damaged list without checking them. This reader checks every number before use.

namespace host::foundation {
namespace {

using Number = std::uint64_t;

constexpr std::string_view kMark = "bplist00";
constexpr std::size_t kTrailerLength = 32;
// The offsets of the trailer's fields.
constexpr std::size_t kOffsetSizeAt = 6;
constexpr std::size_t kReferenceSizeAt = 7;
constexpr std::size_t kCountAt = 8;
constexpr std::size_t kTopAt = 16;
constexpr std::size_t kTableAt = 24;
constexpr std::size_t kWord = 8;

// Stops lists that contain themselves, or contain one part a million times.
constexpr int kDeepest = 100;
constexpr int kMostObjects = 1 << 20;

constexpr unsigned kCountFollows = 15;
// The beginning of 2001, in seconds since 1970.
constexpr double kReferenceDate = 978307200;
constexpr double kFarthestDate = 1e11;

enum Kind : unsigned {
  kSingle = 0,
  kInteger = 1,
  kReal = 2,
  kDate = 3,
  kData = 4,
  kAscii = 5,
  kUnicode = 6,
  kArray = 10,
  kDictionary = 13,
};

bool is_ascii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > 0; });
}

/// Empty when the text has an unpaired surrogate.
std::string utf8(std::string_view big_endian) {
  std::string text;
  const auto unit = [&](std::size_t at) -> char32_t {
    const char32_t high = static_cast<unsigned char>(big_endian[at]);
    return high << 8 | static_cast<unsigned char>(big_endian[at + 1]);
  };
  for (std::size_t at = 0; at < big_endian.size(); at += 2) {
    char32_t code = unit(at);
    if (code >= 0xD800 && code < 0xE000) {
      const char32_t low = at + 3 < big_endian.size() ? unit(at + 2) : 0;
      if (code >= 0xDC00 || low < 0xDC00 || low >= 0xE000) return {};
      code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
      at += 2;
    }
    const int more = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLeads[more] | code >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
      text += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
  }
  return text;
}

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  objc::Object top() {
    if (bytes_.size() < kMark.size() + kTrailerLength) return nil;
    const std::size_t trailer = bytes_.size() - kTrailerLength;
    offset_size_ = static_cast<unsigned char>(bytes_[trailer + kOffsetSizeAt]);
    reference_size_ = static_cast<unsigned char>(bytes_[trailer + kReferenceSizeAt]);
    if (offset_size_ > kWord || reference_size_ > kWord) return nil;
    count_ = *number(trailer + kCountAt, kWord);
    table_ = *number(trailer + kTableAt, kWord);
    return object(*number(trailer + kTopAt, kWord), 0);
  }

 private:
  /// Returns nothing when the range reaches beyond the end.
  std::optional<std::string_view> part(Number at, Number length) const {
    if (at > bytes_.size() || length > bytes_.size() - at) return std::nullopt;
    return bytes_.substr(at, length);
  }
  std::optional<Number> number(Number at, std::size_t size) const {
    const auto digits = part(at, size);
    if (!digits || size == 0) return std::nullopt;
    Number value = 0;
    for (const char digit : *digits)
      value = value << 8 | static_cast<unsigned char>(digit);
    return value;
  }
  std::optional<Number> offset_of(Number index) const {
    if (index >= count_ || index > bytes_.size()) return std::nullopt;
    return number(table_ + index * offset_size_, offset_size_);
  }

  objc::Object object(Number index, int depth) {
    const auto at = offset_of(index);
    const auto mark = at ? number(*at, 1) : std::nullopt;
    if (!mark || depth > kDeepest || ++objects_ > kMostObjects) return nil;
    const auto kind = static_cast<unsigned>(*mark >> 4);
    const auto detail = static_cast<unsigned>(*mark & 15);
    if (kind <= kDate) return plain(kind, detail, *at + 1);
    Number start = *at + 1;
    const auto length = length_from(detail, start);
    if (!length || *length > bytes_.size()) return nil;
    if (kind == kArray) return array(start, *length, depth);
    if (kind == kDictionary) return dictionary(start, *length, depth);
    const auto content = part(start, kind == kUnicode ? *length * 2 : *length);
    if (!content) return nil;
    if (kind == kData) return NSData::dataWithBytes(content->data(), content->size());
    if (kind != kUnicode && (kind != kAscii || !is_ascii(*content))) return nil;
    const std::string text = kind == kUnicode ? utf8(*content) : std::string(*content);
    if (text.empty() != content->empty()) return nil;
    return NSString::stringWithUTF8String(text.c_str());
  }

  /// Returns the length. When it does not fit into the marker and follows it, moves `start` behind
  /// it.
  std::optional<Number> length_from(unsigned detail, Number& start) const {
    if (detail != kCountFollows) return detail;
    const auto mark = number(start, 1);
    if (!mark || *mark >> 4 != kInteger || (*mark & 15) > 3) return std::nullopt;
    const std::size_t size = std::size_t{1} << (*mark & 15);
    start += 1 + size;
    return number(start - size, size);
  }

  objc::Object plain(unsigned kind, unsigned detail, Number start) const {
    if (kind == kSingle && (detail == 8 || detail == 9))
      return NSNumber::numberWithBool(detail == 9);
    if (kind == kSingle || detail > 3) return nil;
    const std::size_t size = std::size_t{1} << detail;
    const auto value = number(start, size);
    if (!value) return nil;
    if (kind == kInteger) return NSNumber::numberWithInteger(static_cast<NSInteger>(*value));
    if (size == 4)
      return NSNumber::numberWithDouble(std::bit_cast<float>(static_cast<std::uint32_t>(*value)));
    if (size != kWord) return nil;
    const auto real = std::bit_cast<double>(*value);
    if (kind == kReal) return NSNumber::numberWithDouble(real);
    // Foundation throws for NaN, and dates farther away are in no calendar.
    if (!(std::abs(real) < kFarthestDate)) return nil;
    return NSDate::dateWithTimeIntervalSince1970(kReferenceDate + real);
  }

  objc::Object referred(Number table, Number place, int depth) {
    const auto index = number(table + place * reference_size_, reference_size_);
    return index ? object(*index, depth + 1) : objc::Object();
  }
  objc::Object array(Number start, Number length, int depth) {
    const auto all = NSMutableArray::array();
    for (Number i = 0; i < length; ++i) {
      const objc::Object value = referred(start, i, depth);
      if (!value) return nil;
      all.addObject(value);
    }
    return all;
  }
  objc::Object dictionary(Number start, Number length, int depth) {
    const auto all = NSMutableDictionary::dictionary();
    for (Number i = 0; i < length; ++i) {
      const auto key = objc::cast<NSObject>(referred(start, i, depth));
      const objc::Object value = referred(start, length + i, depth);
      if (!key || !value || !key.isKindOfClass(NSString::cls())) return nil;
      all.setObject(value, objc::cast<NSString>(key));
    }
    return all;
  }

  std::string_view bytes_;
  std::size_t offset_size_ = 0;
  std::size_t reference_size_ = 0;
  Number count_ = 0;
  Number table_ = 0;
  int objects_ = 0;
};

}  // namespace

bool is_binary_property_list(std::string_view bytes) {
  return bytes.starts_with(kMark);
}

objc::Object binary_property_list(std::string_view bytes) {
  if (!is_binary_property_list(bytes)) return nil;
  return Reader(bytes).top();
}

}  // namespace host::foundation
