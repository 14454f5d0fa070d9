#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <unordered_set>

#include "host/media/cover_file.h"

namespace host::media {

// Keeps the most recently used covers within a fixed number of bytes. A picture that cannot be
// decoded is logged once and remembered as broken. Main thread only.
class ArtworkCache {
 public:
  using PicturePtr = std::shared_ptr<const Picture>;

  explicit ArtworkCache(std::size_t byte_budget) : byte_budget_(byte_budget) {}

  // The cover with its longer side at most `longest_side` pixels, decoded now if it is not cached;
  // null without a picture. One larger than the whole budget is returned but not cached.
  PicturePtr picture(const CoverFile& cover, int longest_side);
  PicturePtr picture(const Track& track, int longest_side) {
    return picture(cover_of(track), longest_side);
  }

  // The cached picture, or null; never decodes.
  PicturePtr kept(std::uint64_t key, int longest_side);
  bool keeps(std::uint64_t key, int longest_side) const {
    return by_key_.contains({key, longest_side});
  }
  // Adds a picture that was decoded elsewhere; null means that it cannot be decoded.
  void put(const CoverFile& cover, int longest_side, PicturePtr picture);
  bool is_broken(std::uint64_t key) const { return broken_.contains(key); }

  std::size_t bytes_kept() const { return bytes_kept_; }
  // The number of pictures decoded so far, here or elsewhere.
  std::size_t decode_count() const { return decode_count_; }

 private:
  struct Key {
    std::uint64_t artwork;
    int longest_side;
    auto operator<=>(const Key&) const = default;
  };
  struct Entry {
    Key key;
    PicturePtr picture;
  };

  void keep(Key key, PicturePtr picture);
  static std::size_t cost(const Entry& entry);

  std::size_t byte_budget_;
  std::size_t bytes_kept_ = 0;
  std::size_t decode_count_ = 0;
  std::list<Entry> entries_;  // Most recently used first.
  std::map<Key, std::list<Entry>::iterator> by_key_;
  std::unordered_set<std::uint64_t> broken_;  // Artworks that cannot be decoded at any size.
};

}  // namespace host::media
