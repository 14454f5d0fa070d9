#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>

#include "host/media/library.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"

namespace host::media_player {

/// A library as the runtime's objects share it: an artist of a thousand songs is one string.
class Shelf {
 public:
  explicit Shelf(std::shared_ptr<const media::Library> library) : library_(std::move(library)) {}

  const media::Library& library() const { return *library_; }

  /// The string of a text that several songs of this library share, which lives as long as the
  /// shelf; nil for an empty text.
  NSString shared_text(std::string_view text);

 private:
  std::shared_ptr<const media::Library> library_;
  // Equal texts of a library are one text, so their address says which they are.
  std::unordered_map<const char*, objc::Ref<NSString>> texts_;
};

/// A new string (+1).
NSString make_string(std::string_view text);

}  // namespace host::media_player
