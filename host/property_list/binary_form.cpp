#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <string>

#include "host/property_list/encoding.h"
#include "host/property_list/forms.h"
#include "platform/Foundation/NSString.h"

// Checks every number before its use. Each object is decoded once, however often it is referred to.
// What no writer does and only costs time ends the reading, too: containers and texts that overlap
// in the file.

namespace host::property_list {
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

constexpr unsigned kCountFollows = 15;
// The beginning of 2001, in seconds since 1970.
constexpr double kReferenceDate = 978307200;
// A reader of the list handles so many bytes as easily as an object.
constexpr std::size_t kBytesLikeAnObject = 64;

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
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= 0; });
}

class BinaryReader {
 public:
  BinaryReader(std::string_view bytes, Builder& builder) : bytes_(bytes), builder_(builder) {}

  objc::Object top() {
    if (bytes_.size() < kMark.size() + kTrailerLength) return damaged();
    const std::size_t trailer = bytes_.size() - kTrailerLength;
    offset_size_ = static_cast<unsigned char>(bytes_[trailer + kOffsetSizeAt]);
    reference_size_ = static_cast<unsigned char>(bytes_[trailer + kReferenceSizeAt]);
    const Number count = *number(trailer + kCountAt, kWord);
    table_ = *number(trailer + kTableAt, kWord);
    if (offset_size_ > kWord || reference_size_ > kWord || !part(table_, count)) return damaged();
    if (count > kMostObjects) return builder_.too_many();
    parts_.resize(count);
    const Part* whole = decoded(*number(trailer + kTopAt, kWord));
    return whole ? whole->object : damaged();
  }

 private:
  /// An object of the file.
  struct Part {
    objc::Object object;
    /// How many objects someone sees who walks it.
    std::size_t weight = 1;
    /// The levels of containers in it.
    int height = 0;
    bool is_begun = false;
  };

  objc::Object damaged() const { return builder_.damaged("it is damaged"); }

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

  /// Returns null after a problem.
  const Part* decoded(Number index) {
    if (index >= parts_.size()) return nullptr;
    Part& known = parts_[index];
    if (!known.is_begun) {
      known.is_begun = true;
      const auto at = number(table_ + index * offset_size_, offset_size_);
      if (at) known.object = object(*at, known);
    } else if (!known.object) {
      builder_.damaged("it contains itself");
    } else if (builder_.depth() + known.height > kDeepest) {
      builder_.too_deep();
      return nullptr;
    }
    return known.object ? &known : nullptr;
  }

  objc::Object object(Number at, Part& to) {
    const auto mark = number(at, 1);
    if (!mark) return nil;
    const auto kind = static_cast<unsigned>(*mark >> 4);
    const auto detail = static_cast<unsigned>(*mark & 15);
    if (kind <= kDate) return plain(kind, detail, at + 1);
    Number start = at + 1;
    const auto length = length_from(detail, start);
    if (!length || *length > bytes_.size()) return nil;
    if (kind == kArray || kind == kDictionary) {
      if (!builder_.enter()) return nil;
      const auto made = container(kind, start, *length, to);
      builder_.leave();
      return made;
    }
    const auto content = part(start, kind == kUnicode ? *length * 2 : *length);
    if (!content || content->size() > bytes_.size() - content_read_) return nil;
    content_read_ += content->size();
    to.weight += content->size() / kBytesLikeAnObject;
    return characters(kind, *content);
  }

  objc::Object characters(unsigned kind, std::string_view content) {
    if (kind == kData) return builder_.data(content);
    if (kind == kAscii) return is_ascii(content) ? builder_.text(content) : objc::Object();
    const auto text = kind == kUnicode ? utf8_from_utf16(content, true) : std::nullopt;
    return text ? builder_.text(*text) : objc::Object();
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

  objc::Object plain(unsigned kind, unsigned detail, Number start) {
    if (kind == kSingle) return detail == 8 || detail == 9 ? builder_.boolean(detail == 9) : nil;
    if (detail > 3) return nil;
    const std::size_t size = std::size_t{1} << detail;
    const auto value = number(start, size);
    if (!value) return nil;
    if (kind == kInteger) return builder_.integer(static_cast<std::int64_t>(*value));
    if (size == 4) return builder_.real(std::bit_cast<float>(static_cast<std::uint32_t>(*value)));
    if (size != kWord) return nil;
    const auto real = std::bit_cast<double>(*value);
    return kind == kReal ? builder_.real(real) : builder_.date(kReferenceDate + real);
  }

  objc::Object container(unsigned kind, Number start, Number length, Part& to) {
    const Number references = kind == kDictionary ? length * 2 : length;
    if (!part(start, references * reference_size_)) return nil;
    references_read_ += references;
    if (references_read_ > kMostObjects) return builder_.too_many();
    Objects objects;
    for (Number i = 0; i < references; ++i) {
      const auto index = number(start + i * reference_size_, reference_size_);
      const Part* each = index ? decoded(*index) : nullptr;
      if (!each) return nil;
      to.weight += each->weight;
      if (to.weight > kMostObjects) return builder_.too_many();
      to.height = std::max(to.height, each->height);
      objects.push_back(each->object);
    }
    ++to.height;
    return kind == kArray ? builder_.array(objects) : dictionary(objects);
  }

  /// The keys, then the values.
  objc::Object dictionary(const Objects& objects) {
    const auto values = objects.begin() + static_cast<std::ptrdiff_t>(objects.size() / 2);
    const auto is_text = [](objc::Object key) {
      return objc::cast<NSObject>(key).isKindOfClass(NSString::cls());
    };
    if (!std::all_of(objects.begin(), values, is_text)) return nil;
    return builder_.dictionary({objects.begin(), values}, {values, objects.end()});
  }

  std::string_view bytes_;
  Builder& builder_;
  std::size_t offset_size_ = 0;
  std::size_t reference_size_ = 0;
  Number table_ = 0;
  std::vector<Part> parts_;
  std::size_t references_read_ = 0;
  std::size_t content_read_ = 0;
};

}  // namespace

bool is_binary(std::string_view bytes) {
  return bytes.starts_with(kMark);
}

objc::Object read_binary(std::string_view bytes, Builder& builder) {
  return BinaryReader(bytes, builder).top();
}

}  // namespace host::property_list
