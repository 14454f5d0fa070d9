#include "host/media/artwork_cache.h"

#include <fmt/core.h>

#include <fstream>
#include <iterator>
#include <string>

#include "host/media/log.h"
#include "host/media/tag_reader.h"

namespace host::media {
namespace {

constexpr std::size_t entry_overhead = 128;
constexpr std::streamoff largest_file_bytes = 32 << 20;

std::vector<std::uint8_t> bytes_of_file(const std::string& path) {
  std::ifstream file{path, std::ios::binary | std::ios::ate};
  const std::streamoff size = file.tellg();
  if (!file || size <= 0 || size > largest_file_bytes) return {};
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  file.seekg(0);
  file.read(reinterpret_cast<char*>(bytes.data()), size);
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace

std::shared_ptr<const Picture> ArtworkCache::picture(const Track& track, int longest_side) {
  if (!track.has_artwork() || broken_.contains(track.artwork_key)) return nullptr;
  const Key key{track.artwork_key, longest_side};
  if (const auto known = by_key_.find(key); known != by_key_.end()) {
    entries_.splice(entries_.begin(), entries_, known->second);
    return known->second->picture;
  }
  auto decoded = decode(track, longest_side);
  if (decoded) {
    keep(key, decoded);
  } else {
    broken_.insert(track.artwork_key);
  }
  return decoded;
}

std::shared_ptr<const Picture> ArtworkCache::decode(const Track& track, int longest_side) {
  ++decode_count_;
  const std::string path{track.picture_path.empty() ? track.path : track.picture_path};
  const auto bytes = track.picture_path.empty() ? read_embedded_picture(path) : bytes_of_file(path);
  auto picture = decode_picture(bytes, longest_side);
  if (!picture) {
    log_warning(fmt::format("the cover in {} cannot be shown", path));
    return nullptr;
  }
  return std::make_shared<const Picture>(std::move(*picture));
}

void ArtworkCache::keep(Key key, std::shared_ptr<const Picture> picture) {
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
