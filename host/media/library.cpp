#include "host/media/library.h"

#include <algorithm>
#include <string>

#include "host/media/hash.h"
#include "host/media/library_builder.h"
#include "host/media/text.h"

namespace host::media {

std::uint64_t album_identifier(const SongTags& tags) {
  const std::string& artist = tags.album_artist.empty() ? tags.artist : tags.album_artist;
  std::string key;
  append_folded(key, tags.album);
  key += key_separator;
  if (!tags.is_compilation) append_folded(key, artist);
  return identifier_from(stable_hash(key));
}

std::shared_ptr<const Library> Library::build(std::span<const SongRecord> records) {
  LibraryBuilder builder;
  builder.reserve(records.size());
  for (const SongRecord& record : records)
    builder.add(record);
  return builder.finish();
}

const Track* Library::find(std::uint64_t id) const {
  const auto id_of = [this](std::uint32_t index) { return tracks_[index].id; };
  const auto found = std::ranges::lower_bound(by_id_, id, {}, id_of);
  if (found == by_id_.end() || id_of(*found) != id) return nullptr;
  return &tracks_[*found];
}

std::vector<const Track*> Library::album(std::uint64_t album_id) const {
  std::vector<const Track*> songs;
  for (const std::uint32_t index : places_of_album(album_id))
    songs.push_back(&tracks_[index]);
  return songs;
}

std::span<const std::uint32_t> Library::places_of_album(std::uint64_t album_id) const {
  const auto album_of = [this](std::uint32_t index) { return tracks_[index].album_id; };
  return std::ranges::equal_range(by_album_, album_id, {}, album_of);
}

}  // namespace host::media
