#include "host/media/library.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <tuple>

#include "host/media/hash.h"
#include "host/media/text.h"

namespace host::media {
namespace {

// Separates the parts of a key. It occurs in none of them, since tags hold no control characters.
constexpr char separator = '\x01';

std::string sort_key(const SongRecord& record) {
  std::string key = folded_text(record.tags.title);
  key += separator;
  key += folded_text(record.tags.artist);
  key += separator;
  key += folded_text(record.tags.album);
  return key;
}

auto place_in_album(const Track& track) {
  return std::tuple{track.album_id, track.disc_number, track.track_number};
}

}  // namespace

std::uint64_t album_identifier(const SongTags& tags) {
  const std::string& artist = tags.album_artist.empty() ? tags.artist : tags.album_artist;
  const std::string owner = tags.is_compilation ? std::string{} : folded_text(artist);
  return identifier_from(stable_hash(folded_text(tags.album) + separator + owner));
}

std::shared_ptr<const Library> Library::build(std::span<const SongRecord> records) {
  return std::shared_ptr<const Library>{new Library{records}};
}

Library::Library(std::span<const SongRecord> records) {
  std::vector<std::pair<std::string, std::uint32_t>> order;
  order.reserve(records.size());
  for (std::uint32_t i = 0; i < records.size(); ++i)
    order.emplace_back(sort_key(records[i]), i);
  std::ranges::sort(order, [&](const auto& left, const auto& right) {
    if (const int texts = left.first.compare(right.first); texts != 0) return texts < 0;
    const SongRecord& a = records[left.second];
    const SongRecord& b = records[right.second];
    return std::tuple{a.tags.disc_number, a.tags.track_number, a.id} <
           std::tuple{b.tags.disc_number, b.tags.track_number, b.id};
  });

  tracks_.reserve(records.size());
  for (const auto& entry : order)
    tracks_.push_back(track_from(records[entry.second]));
  texts_.close();

  std::vector<std::uint64_t> ids;
  ids.reserve(tracks_.size());
  for (const Track& track : tracks_)
    ids.push_back(track.id);
  songs_ = make_song_list(std::move(ids));

  by_id_.resize(tracks_.size());
  std::iota(by_id_.begin(), by_id_.end(), 0u);
  by_album_ = by_id_;
  std::ranges::sort(by_id_, {}, [this](std::uint32_t index) { return tracks_[index].id; });
  std::ranges::stable_sort(by_album_, {},
                           [this](std::uint32_t index) { return place_in_album(tracks_[index]); });
}

Track Library::track_from(const SongRecord& record) {
  const SongTags& tags = record.tags;
  Track track;
  track.id = record.id;
  track.album_id = album_identifier(tags);
  // Songs come in the order of their titles, so an equal title can only be the previous one.
  const bool is_known = !tracks_.empty() && tracks_.back().title == tags.title;
  track.title = is_known ? tracks_.back().title : texts_.store(tags.title);
  track.artist = texts_.keep(tags.artist);
  track.album_artist = texts_.keep(tags.album_artist);
  track.album = texts_.keep(tags.album);
  track.genre = texts_.keep(tags.genre);
  track.composer = texts_.keep(tags.composer);
  track.path = texts_.store(record.path);
  if (tags.own_artwork != 0) {
    track.artwork_key = tags.own_artwork;
    track.artwork = tags.own_picture;
    track.picture_path = texts_.keep(tags.own_picture_path);
  } else if (record.folder_picture.header.is_usable()) {
    track.artwork_key = record.folder_picture.key;
    track.artwork = record.folder_picture.header;
    track.picture_path = texts_.keep(record.folder_picture.path);
  }
  track.duration_seconds = tags.duration_seconds;
  track.track_number = tags.track_number;
  track.disc_number = tags.disc_number;
  track.is_cloud = tags.is_cloud;
  return track;
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
