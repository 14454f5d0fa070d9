#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "host/media/song_tags.h"

namespace host::media {

// Writes `tags` into the audio file at `path`, and `jpeg` as its front cover unless it is empty.
// Returns false when the file cannot be written.
bool write_tags(const std::string& path, const SongTags& tags, std::span<const std::uint8_t> jpeg);

}  // namespace host::media
