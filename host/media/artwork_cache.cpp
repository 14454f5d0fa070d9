#include "host/media/artwork_cache.h"

#include <fmt/core.h>

#include <utility>

#include "host/media/log.h"

namespace host::media {
namespace {

constexpr std::size_t entry_overhead = 128;

}  // namespace

ArtworkCache::PicturePtr ArtworkCache::picture(const CoverFile& cover, int longest_side) {
  if (cover.key == 0 || is_broken(cover.key)) return nullptr;
  if (PicturePtr known = kept(cover.key, longest_side)) return known;
  auto decoded = decode_cover(cover, longest_side);
  const PicturePtr made = decoded ? std::make_shared<const Picture>(std::move(*decoded)) : nullptr;
  put(cover, longest_side, made);
  return made;
}

ArtworkCache::PicturePtr ArtworkCache::kept(std::uint64_t key, int longest_side) {
  const auto known = by_key_.find({key, longest_side});
  if (known == by_key_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, known->second);
  return known->second->picture;
}

void ArtworkCache::put(const CoverFile& cover, int longest_side, PicturePtr picture) {
  ++decode_count_;
  if (picture) {
    if (!keeps(cover.key, longest_side)) keep({cover.key, longest_side}, std::move(picture));
  } else if (broken_.insert(cover.key).second) {
    log_warning(fmt::format("the cover in {} cannot be shown", cover.path));
  }
}

void ArtworkCache::keep(Key key, PicturePtr picture) {
  entries_.push_front({key, std::move(picture)});
  by_key_[key] = entries_.begin();
  bytes_kept_ += cost(entries_.front());
  while (bytes_kept_ > byte_budget_ && !entries_.empty()) {
    bytes_kept_ -= cost(entries_.back());
    by_key_.erase(entries_.back().key);
    entries_.pop_back();
  }
}

std::size_t ArtworkCache::cost(const Entry& entry) {
  return entry_overhead + entry.picture->byte_count();
}

}  // namespace host::media
