#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>

#include "host/media/library.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace host::media_player {

/// A library as shared by the runtime's objects: an artist of a thousand songs is one string.
class Shelf {
 public:
  explicit Shelf(std::shared_ptr<const media::Library> library) : library_(std::move(library)) {}

  ~Shelf();

  const media::Library& library() const { return *library_; }

  /// Returns the string for one of the library's texts, shared by all songs that have it; nil for
  /// an empty text. It lives as long as the shelf.
  NSString shared_text(std::string_view text);
  /// Returns a new string for a title that no other song has, otherwise the shared one, retained;
  /// either way the caller owns it. Returns nil for an empty title.
  NSString make_title(const media::Track& track);
  /// Returns the number of an album, shared by all its songs; it lives as long as the shelf.
  NSNumber album_number(std::uint64_t album_id);

 private:
  std::shared_ptr<const media::Library> library_;
  // Equal texts of a library are one text, so the address identifies it.
  std::unordered_map<const char*, objc::Ref<NSString>> texts_;
  std::unordered_map<std::uint64_t, objc::Ref<NSNumber>> album_numbers_;
};

/// Returns a new string; the caller owns it.
NSString make_string(std::string_view text);

}  // namespace host::media_player
