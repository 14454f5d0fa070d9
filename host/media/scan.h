#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <stop_token>
#include <string>

#include "host/media/index.h"
#include "host/media/library.h"

namespace host::media {

// Counts files with the name of a song: found, opened in this scan, and not containing a song.
struct ScanProgress {
  std::size_t seen = 0;
  std::size_t read = 0;
  std::size_t skipped = 0;
  std::size_t unreadable_folders = 0;
};

struct ScanOutcome {
  ScanProgress progress;
  std::shared_ptr<const Library> library;
};

using ScanReport = std::function<void(const ScanProgress&)>;

// Returns the songs below `roots` that the index remembers, without looking at the music folders.
std::shared_ptr<const Library> remembered_library(Index& index, std::span<const std::string> roots);

// Updates the index from the folders and returns the library. Only files whose size or time has
// changed are opened. A stopped scan keeps what it has read, forgets nothing, and returns the songs
// found so far. When nothing has changed since `remembered` was made from the index, returns that
// same library without loading tags or texts.
ScanOutcome scan_folders(Index& index, std::span<const std::string> roots, const ScanReport& report,
                         std::stop_token stop = {},
                         std::shared_ptr<const Library> remembered = nullptr);

}  // namespace host::media
