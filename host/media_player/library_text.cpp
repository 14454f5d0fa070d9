#include "host/media_player/library_text.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "host/foundation/canonical_search.h"
#include "host/media_player/range_exception.h"
#include "host/media_player/shelf.h"
#include "host/runtime/text_bytes.h"
#include "objc/ref.h"

namespace host::media_player {
namespace {

constexpr std::string_view kReplacement = "\xef\xbf\xbd";

/// The text of the latest search. A search looks for the same text in every title.
class Wanted {
 public:
  /// Returns null for a text that must be searched for letter by letter.
  static const Wanted* for_string(NSString string) {
    thread_local Wanted wanted;
    if (!string) return nullptr;
    if (wanted.string_.get() != string) wanted.read(string);
    return wanted.is_text_ ? &wanted : nullptr;
  }

  /// Returns the first occurrence in `text`, which must be plain; null if not found. In plain
  /// text every letter is a single code point, and so must be every letter that is found there.
  const char* find_in(std::string_view text) const {
    if (!is_plain_ || text.size() < bytes_.size()) return nullptr;
    const void* found = bytes_.size() == 1
                            ? std::memchr(text.data(), bytes_.front(), text.size())
                            : ::memmem(text.data(), text.size(), bytes_.data(), bytes_.size());
    return static_cast<const char*>(found);
  }
  NSUInteger length() const { return length_; }

 private:
  void read(NSString string) {
    bytes_ = utf8_of(string);
    TextShape shape = shape_of(bytes_);
    // What UTF-8 cannot represent has been replaced.
    is_text_ = shape.length > 0 && bytes_.find(kReplacement) == bytes_.npos;
    if (is_text_ && shape.kind == TextKind::other) {
      bytes_ = foundation::composed(bytes_);
      shape = shape_of(bytes_);
    }
    length_ = shape.length;
    is_plain_ = shape.kind <= TextKind::plain;
    // A mutable string has to be read every time.
    const bool may_change = string.isKindOfClass(objc_getClass("NSMutableString"));
    string_.reset(may_change ? NSString() : string);
  }

  objc::Ref<NSString> string_;
  std::string bytes_;
  NSUInteger length_ = 0;
  bool is_text_ = false;
  bool is_plain_ = false;
};

bool has_capitals(std::string_view ascii) {
  return std::ranges::any_of(ascii, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

std::shared_ptr<char[]> with_zero(std::string_view text) {
  auto copy = std::make_shared_for_overwrite<char[]>(text.size() + 1);
  *std::ranges::copy(text, copy.get()).out = '\0';
  return copy;
}

NSString make_owning(std::string_view text) {
  const auto copy = with_zero(text);
  return LibraryText::make({copy.get(), text.size()}, copy);
}

}  // namespace

NSString LibraryText::make(std::string_view text, std::shared_ptr<const void> keeper) {
  const TextShape shape = shape_of(text);
  if (shape.kind == TextKind::broken || text.size() > UINT32_MAX) return make_string(text);
  const MPLibraryText string = MPLibraryText::alloc();
  auto& state = objc::state_of<LibraryText>(string);
  state.bytes_ = text.data();
  state.size_ = static_cast<std::uint32_t>(text.size());
  state.length_ = static_cast<std::uint32_t>(shape.length);
  state.kind_ = shape.kind;
  state.keeper_ = std::move(keeper);
  return string;
}

LibraryText::~LibraryText() {
  delete[] units_.load();
  // A caller that was given it during this turn relies on it until the turn ends.
  if (const auto lower = objc::wrap<NSString>(lowercase_.load()); lower != self)
    lower.autorelease();
}

const unichar* LibraryText::units() {
  if (const unichar* known = units_.load(std::memory_order_acquire)) return known;
  auto* made = new unichar[length_ + 1];
  widen(bytes(), made);
  unichar* known = nullptr;
  if (units_.compare_exchange_strong(known, made, std::memory_order_acq_rel)) return made;
  delete[] made;
  return known;
}

unichar LibraryText::character_at_index(NSUInteger index) {
  if (index >= length_) raise_range_exception("a string", index, length_);
  return kind_ == TextKind::ascii ? static_cast<unsigned char>(bytes_[index]) : units()[index];
}

void LibraryText::get_characters(unichar* characters, NSRange range) {
  if (range.location > length_ || range.length > length_ - range.location) {
    raise_range_exception("a string", range.location + range.length, length_);
  }
  if (kind_ == TextKind::ascii) {
    std::copy_n(bytes_ + range.location, range.length, characters);
  } else {
    std::copy_n(units() + range.location, range.length, characters);
  }
}

// Foundation's hash, so that equal strings of all classes share one.
NSUInteger LibraryText::hash() {
  NSUInteger known = hash_.load(std::memory_order_relaxed);
  if (known == 0) {
    known = super<NSUInteger>("hash"_sel);
    hash_.store(known, std::memory_order_relaxed);
  }
  return known;
}

BOOL LibraryText::is_equal(objc::Object other) {
  if (other == self) return YES;
  if (!other || !objc::cast<NSObject>(other).isKindOfClass(NSString::cls())) return NO;
  return is_equal_to_string(objc::cast<NSString>(other));
}

BOOL LibraryText::is_equal_to_string(NSString other) {
  if (other == self) return YES;
  if (!other) return NO;
  const bool is_ours = objc::class_of(other.id()) == MPLibraryText::cls();
  if (!is_ours) return equals_foreign(other);
  const auto& theirs = objc::state_of<LibraryText>(other);
  if (bytes() == theirs.bytes()) return YES;
  const bool bytes_decide = kind_ <= TextKind::plain && theirs.kind_ <= TextKind::plain;
  return bytes_decide ? NO : super<BOOL>("isEqualToString:"_sel, other);
}

BOOL LibraryText::equals_foreign(NSString other) {
  constexpr NSUInteger most_units = 256;
  const NSUInteger length = other.length();
  if (kind_ > TextKind::plain || length > most_units) {
    return super<BOOL>("isEqualToString:"_sel, other);
  }
  unichar theirs[most_units];
  objc::send<>(other, "getCharacters:range:"_sel, static_cast<unichar*>(theirs),
               NSRange{0, length});
  const std::span<const unichar> letters{theirs, length};
  if (!std::ranges::all_of(letters, foundation::is_plain_letter)) {
    return super<BOOL>("isEqualToString:"_sel, other);
  }
  if (length != length_) return NO;
  const bool is_same = kind_ == TextKind::ascii ? std::ranges::equal(letters, bytes())
                                                : std::equal(theirs, theirs + length, units());
  return is_same ? YES : NO;
}

NSString LibraryText::lowercase_string() {
  if (const objc::Id known = lowercase_.load(std::memory_order_acquire)) {
    return objc::wrap<NSString>(known);
  }
  const NSString made = make_lowercase();
  objc::Id known = nullptr;
  if (lowercase_.compare_exchange_strong(known, made.id(), std::memory_order_acq_rel)) return made;
  if (made != self) made.release();
  return objc::wrap<NSString>(known);
}

// Returns this object itself, or a new one that the caller owns.
NSString LibraryText::make_lowercase() {
  if (kind_ == TextKind::ascii) {
    if (!has_capitals(bytes())) return self;
    const auto copy = with_zero(bytes());
    for (char& letter : std::span(copy.get(), size_)) {
      if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
    }
    return make({copy.get(), size_}, copy);
  }
  const char* lower = super<NSString>("lowercaseString"_sel).UTF8String();
  const std::string_view text = lower ? lower : "";
  return text == bytes() ? NSString(self) : make_owning(text);
}

NSRange LibraryText::range_of_string(NSString wanted) {
  const Wanted* text = kind_ <= TextKind::plain ? Wanted::for_string(wanted) : nullptr;
  if (!text) return super<NSRange>("rangeOfString:"_sel, wanted);
  const char* found = text->find_in(bytes());
  if (!found) return {NSNotFound, 0};
  const auto offset = static_cast<std::size_t>(found - bytes_);
  return {kind_ == TextKind::ascii ? offset : units_before(bytes(), offset), text->length()};
}

const char* LibraryText::utf8_string() {
  self.retain().autorelease();
  return bytes_;
}

void export_library_text() {
  if (objc_getClass("MPLibraryText")) return;
  objc::ClassBuilder("MPLibraryText", "NSString")
      .state<LibraryText>()
      .method<&LibraryText::length>("length")
      .method<&LibraryText::character_at_index>("characterAtIndex:")
      .method<&LibraryText::get_characters>("getCharacters:range:")
      .method<&LibraryText::hash>("hash")
      .method<&LibraryText::is_equal>("isEqual:")
      .method<&LibraryText::is_equal_to_string>("isEqualToString:")
      .method<&LibraryText::lowercase_string>("lowercaseString")
      .method<&LibraryText::range_of_string>("rangeOfString:")
      .method<&LibraryText::utf8_string>("UTF8String")
      .method<&LibraryText::copy_with_zone>("copyWithZone:")
      .finish();
}

}  // namespace host::media_player
