#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>

#include "host/media/library.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace host::media_player {

/// A library as the runtime's objects share it: an artist of a thousand songs is one string.
class Shelf {
 public:
  explicit Shelf(std::shared_ptr<const media::Library> library) : library_(std::move(library)) {}

  ~Shelf();

  const media::Library& library() const { return *library_; }

  /// The string of one of the library's texts, one for all songs that have it. It lives as long as
  /// the shelf; nil for an empty text.
  NSString shared_text(std::string_view text);
  /// A new string (+1) of a title that no other song has, or +1 on the one that they share; nil for
  /// an empty title.
  NSString make_title(const media::Track& track);
  /// The number of an album, one for all its songs, which lives as long as the shelf.
  NSNumber album_number(std::uint64_t album_id);

 private:
  std::shared_ptr<const media::Library> library_;
  // Equal texts of a library are one text, so their address says which they are.
  std::unordered_map<const char*, objc::Ref<NSString>> texts_;
  std::unordered_map<std::uint64_t, objc::Ref<NSNumber>> album_numbers_;
};

/// A new string (+1).
NSString make_string(std::string_view text);

}  // namespace host::media_player
