#pragma once

#include <memory>
#include <span>
#include <vector>

#include "host/media/play_queue.h"
#include "host/media/song_record.h"
#include "host/media/text_pool.h"
#include "host/media/track.h"

namespace host::media {

// An immutable snapshot of the songs, shared between threads without a lock. Songs are ordered by
// title, ignoring case, then by artist, album, disc and number.
class Library {
 public:
  // Songs that are not in memory yet are better given to a `LibraryBuilder`.
  static std::shared_ptr<const Library> build(std::span<const SongRecord> records);

  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  std::span<const Track> tracks() const { return tracks_; }

  // The identifiers of all songs, in their order.
  const SongList& songs() const { return songs_; }

  // Null when no song has this identifier.
  const Track* find(std::uint64_t id) const;

  // The songs of one album in the order of their discs and numbers.
  std::vector<const Track*> album(std::uint64_t album_id) const;
  // The same songs as indices into `tracks()`.
  std::span<const std::uint32_t> places_of_album(std::uint64_t album_id) const;

 private:
  friend class LibraryBuilder;

  Library() = default;

  TextPool texts_;
  std::vector<Track> tracks_;
  SongList songs_;
  std::vector<std::uint32_t> by_id_;     // Indices into tracks_, ordered by identifier.
  std::vector<std::uint32_t> by_album_;  // The same, ordered by album, disc and number.
};

// Songs belong to the same album when the album's name and artist are equal, ignoring case; for a
// compilation the name alone counts.
std::uint64_t album_identifier(const SongTags& tags);

}  // namespace host::media
