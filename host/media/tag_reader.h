#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/media/song_name.h"
#include "host/media/song_tags.h"

namespace host::media {

struct TagReading {
  std::optional<SongTags> tags;
  std::string refusal;  // Why there are no tags; empty when there are, or the log says it already.
  // The song names a picture that cannot be shown; it counts as having none.
  bool has_broken_picture = false;
};

// Reads any file without throwing. An audio file without a title gets the file's name as its title;
// a file without audio is refused with the reason.
TagReading read_tags(const std::string& path);

// Returns the encoded picture (JPEG or PNG) inside the file, the front cover if there are several;
// empty when it is missing or absurdly large.
std::vector<std::uint8_t> read_embedded_picture(const std::string& path);

}  // namespace host::media
