#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string_view>

#include "host/media_player/text_shape.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSString.h"

namespace host::media_player {

struct MPLibraryText : objc::Bound<MPLibraryText, "MPLibraryText", NSString> {};

/// A string over the bytes of a library's text, without copying them. It behaves like every string
/// of Foundation; results that a search needs of a hundred thousand titles are cached.
class LibraryText : public objc::Implementation<LibraryText, MPLibraryText> {
 public:
  explicit LibraryText(MPLibraryText owner) : Implementation(owner) {}
  ~LibraryText();

  /// Returns a new string over `text`; the caller owns it. `keeper` keeps the bytes alive, and a
  /// zero byte behind them. Invalid UTF-8 becomes what Foundation makes of it.
  static NSString make(std::string_view text, std::shared_ptr<const void> keeper);

  NSUInteger length() const { return length_; }
  unichar character_at_index(NSUInteger index);
  void get_characters(unichar* characters, NSRange range);
  NSUInteger hash();
  BOOL is_equal(objc::Object other);
  BOOL is_equal_to_string(NSString other);
  NSString lowercase_string();
  NSRange range_of_string(NSString wanted);
  const char* utf8_string();
  MPLibraryText copy_with_zone(void*) const { return self.retain(); }

 private:
  std::string_view bytes() const { return {bytes_, size_}; }
  const unichar* units();
  BOOL equals(const LibraryText& other) const;
  BOOL equals_foreign(NSString other);
  NSString make_lowercase();

  // What a search reads comes first, to share one cache line.
  std::atomic<objc::Id> lowercase_ = nullptr;  // Owned unless it is this object.
  std::uint32_t length_ = 0;                   // In UTF-16 units.
  std::uint32_t size_ = 0;
  const char* bytes_ = nullptr;
  TextKind kind_ = TextKind::ascii;
  // Computed on first use, like the lower-case text, on any thread.
  std::atomic<NSUInteger> hash_ = 0;
  std::atomic<unichar*> units_ = nullptr;  // For a text that is not ASCII.
  std::shared_ptr<const void> keeper_;
};

void export_library_text();

}  // namespace host::media_player
