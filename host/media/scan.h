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

// Files with the name of a song: all seen, those opened in this scan, those without a song in them.
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

// The songs that the index remembers below `roots`, without a look at the disk.
std::shared_ptr<const Library> remembered_library(Index& index, std::span<const std::string> roots);

// Brings the index up to date with the folders and answers the library. Only files whose size or
// time has changed are opened. A scan that is stopped keeps what it has read, forgets nothing, and
// answers the songs that it has seen. When nothing at all has changed since `remembered` was made
// from the index, that very library is the answer, and neither tags nor texts are looked at.
ScanOutcome scan_folders(Index& index, std::span<const std::string> roots, const ScanReport& report,
                         std::stop_token stop = {},
                         std::shared_ptr<const Library> remembered = nullptr);

}  // namespace host::media
