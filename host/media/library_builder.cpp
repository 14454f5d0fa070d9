#include "host/media/library_builder.h"

#include <algorithm>
#include <tuple>

#include "host/media/text.h"
#include "host/media/text_order.h"

namespace host::media {
namespace {

struct PlaceInAlbum {
  std::uint64_t album;
  int disc;
  int number;
  std::uint32_t place;

  auto operator<=>(const PlaceInAlbum&) const = default;
};

std::vector<std::uint32_t> places_by_album(std::span<const Track> tracks) {
  std::vector<PlaceInAlbum> order;
  order.reserve(tracks.size());
  for (std::uint32_t place = 0; place < tracks.size(); ++place) {
    const Track& track = tracks[place];
    order.push_back({track.album_id, track.disc_number, track.track_number, place});
  }
  std::ranges::sort(order);
  std::vector<std::uint32_t> places;
  places.reserve(order.size());
  for (const PlaceInAlbum& song : order)
    places.push_back(song.place);
  return places;
}

// The index gives the songs by identifier, so there is hardly ever anything to sort.
std::vector<std::uint32_t> places_by_id(std::span<const Track> as_they_came,
                                        std::span<const std::uint32_t> order) {
  std::vector<std::uint32_t> came(order.size());
  for (std::uint32_t i = 0; i < came.size(); ++i)
    came[i] = i;
  const auto id_of = [as_they_came](std::uint32_t i) { return as_they_came[i].id; };
  if (!std::ranges::is_sorted(came, {}, id_of)) std::ranges::sort(came, {}, id_of);
  std::vector<std::uint32_t> place_of(order.size());
  for (std::uint32_t place = 0; place < order.size(); ++place)
    place_of[order[place]] = place;
  std::ranges::transform(came, came.begin(), [&](std::uint32_t i) { return place_of[i]; });
  return came;
}

}  // namespace

void LibraryBuilder::reserve(std::size_t songs) {
  tracks_.reserve(songs);
  keys_.reserve(songs);
}

std::string_view LibraryBuilder::sort_key(const SongTags& tags) {
  key_.clear();
  append_folded(key_, tags.title);
  key_ += key_separator;
  append_folded(key_, tags.artist);
  key_ += key_separator;
  append_folded(key_, tags.album);
  return loose_.store(key_);
}

void LibraryBuilder::add(const SongRecord& record) {
  const SongTags& tags = record.tags;
  Track& track = tracks_.emplace_back();
  track.id = record.id;
  track.album_id = album_identifier(tags);
  track.title = loose_.store(tags.title);
  track.artist = texts_.keep(tags.artist);
  track.album_artist = texts_.keep(tags.album_artist);
  track.album = texts_.keep(tags.album);
  track.genre = texts_.keep(tags.genre);
  track.composer = texts_.keep(tags.composer);
  track.path = loose_.store(record.path);
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
  keys_.push_back(sort_key(tags));
}

std::vector<std::uint32_t> LibraryBuilder::places_in_order() const {
  return order_of_texts(keys_, [this](std::uint32_t left, std::uint32_t right) {
    const auto place = [this](std::uint32_t i) {
      return std::tuple{tracks_[i].disc_number, tracks_[i].track_number, tracks_[i].id};
    };
    return place(left) < place(right);
  });
}

// Titles and paths are stored in the order of the songs, in which lists read them.
void LibraryBuilder::take_in_order(Library& library, std::span<const std::uint32_t> order) {
  library.tracks_.reserve(order.size());
  std::vector<std::uint64_t> ids;
  ids.reserve(order.size());
  for (const std::uint32_t i : order) {
    const Track* previous = library.tracks_.empty() ? nullptr : &library.tracks_.back();
    Track& track = library.tracks_.emplace_back(tracks_[i]);
    const bool is_known = previous && previous->title == track.title;
    track.title = is_known ? previous->title : texts_.store(track.title);
    track.path = texts_.store(track.path);
    ids.push_back(track.id);
  }
  library.songs_ = make_song_list(std::move(ids));
}

std::shared_ptr<const Library> LibraryBuilder::finish() {
  const std::vector<std::uint32_t> order = places_in_order();
  const std::shared_ptr<Library> library{new Library};
  take_in_order(*library, order);
  library->by_id_ = places_by_id(tracks_, order);
  library->by_album_ = places_by_album(library->tracks_);
  texts_.close();
  library->texts_ = std::move(texts_);
  return library;
}

}  // namespace host::media
