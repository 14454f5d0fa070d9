#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <unordered_set>

#include "host/media/picture.h"
#include "host/media/track.h"

namespace host::media {

// Decodes covers when they are first asked for and keeps the latest within a fixed number of bytes.
// A picture that cannot be decoded is logged once and remembered as missing. Main thread only.
class ArtworkCache {
 public:
  explicit ArtworkCache(std::size_t byte_budget) : byte_budget_(byte_budget) {}

  // The cover with its longer side at most `longest_side` pixels; null when there is none. A
  // picture larger than the whole budget is still answered, and not kept.
  std::shared_ptr<const Picture> picture(const Track& track, int longest_side);

  std::size_t bytes_kept() const { return bytes_kept_; }
  std::size_t decode_count() const { return decode_count_; }

 private:
  struct Key {
    std::uint64_t artwork;
    int longest_side;
    auto operator<=>(const Key&) const = default;
  };
  struct Entry {
    Key key;
    std::shared_ptr<const Picture> picture;
  };

  std::shared_ptr<const Picture> decode(const Track& track, int longest_side);
  void keep(Key key, std::shared_ptr<const Picture> picture);
  static std::size_t cost(const Entry& entry);

  std::size_t byte_budget_;
  std::size_t bytes_kept_ = 0;
  std::size_t decode_count_ = 0;
  std::list<Entry> entries_;  // The latest used first.
  std::map<Key, std::list<Entry>::iterator> by_key_;
  std::unordered_set<std::uint64_t> broken_;  // Artworks that cannot be decoded at any size.
};

}  // namespace host::media
