#pragma once

#include <memory>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace host::media {

// Stores each distinct text once, at an address that never changes: a hundred thousand songs share
// a few thousand artists, albums and genres. Every text is followed by a zero byte.
class TextPool {
 public:
  std::string_view keep(std::string_view text) {
    if (text.empty()) return "";
    if (const auto known = kept_.find(text); known != kept_.end()) return *known;
    return *kept_.insert(store(text)).first;
  }

  // Stores without a lookup, for texts that are hardly ever equal, such as paths.
  std::string_view store(std::string_view text) {
    const std::size_t needed = text.size() + 1;
    if (needed > room_) {
      const std::size_t size = needed > block_bytes ? needed : block_bytes;
      blocks_.push_back(std::make_unique_for_overwrite<char[]>(size));
      next_ = blocks_.back().get();
      room_ = size;
    }
    char* const start = next_;
    text.copy(start, text.size());
    start[text.size()] = '\0';
    next_ += needed;
    room_ -= needed;
    return {start, text.size()};
  }

  // Frees the set of known texts, which is not needed once everything is stored.
  void close() { kept_ = {}; }

 private:
  static constexpr std::size_t block_bytes = 64 * 1024;

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::unordered_set<std::string_view> kept_;
  char* next_ = nullptr;
  std::size_t room_ = 0;
};

}  // namespace host::media
