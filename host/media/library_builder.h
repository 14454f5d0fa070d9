#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/media/library.h"
#include "host/media/song_record.h"
#include "host/media/text_pool.h"
#include "host/media/track.h"

namespace host::media {

// Makes a library of songs that are given one by one, and need not stay: a hundred thousand records
// with a dozen texts each would take longer to allocate than to sort.
class LibraryBuilder {
 public:
  void reserve(std::size_t songs);
  void add(const SongRecord& record);

  // Call once.
  std::shared_ptr<const Library> finish();

 private:
  std::string_view sort_key(const SongTags& tags);
  std::vector<std::uint32_t> places_in_order() const;
  void take_in_order(Library& library, std::span<const std::uint32_t> order);

  TextPool texts_;             // The library's, which are the same in many songs.
  TextPool loose_;             // Titles, paths and keys, until they are in order.
  std::vector<Track> tracks_;  // As they came.
  std::vector<std::string_view> keys_;
  std::string key_;
};

}  // namespace host::media
