#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>

#include "host/media/folder_watch.h"
#include "host/media/index.h"
#include "host/media/library.h"

namespace host::media {

// Counts files with the name of a song: to look at, looked at, opened in this scan, and not
// containing a song. A first scan knows from its walk how many there are; others do not need to.
struct ScanProgress {
  std::size_t to_see = 0;  // 0 while that is not known.
  std::size_t seen = 0;
  std::size_t read = 0;
  std::size_t skipped = 0;
  std::size_t unreadable_folders = 0;
};

// Files of sound that is not played, by their suffix.
using LeftOut = std::map<std::string, std::size_t>;

struct ScanOutcome {
  ScanProgress progress;
  std::shared_ptr<const Library> library;
  LeftOut left_out;
};

// What stays from one scan of the same folders to the next.
struct KeptByScans {
  FolderWatch* watch = nullptr;      // Sees every folder that a scan walks through.
  std::set<std::string> complaints;  // Said once.
};

using ScanReport = std::function<void(const ScanProgress&)>;

// Returns the songs that the index remembers, only those below `roots` if there are any, without
// looking at the music folders.
std::shared_ptr<const Library> remembered_library(
    Index& index, std::optional<std::span<const std::string>> roots = {});

// Updates the index from the folders and returns the library. Only files whose size or time has
// changed are opened. A stopped scan keeps what it has read, forgets nothing, and returns the songs
// found so far. When nothing has changed since `remembered` was made from the index, returns that
// same library without loading tags or texts. A root may also be a song, which is refused without a
// line in the log.
ScanOutcome scan_folders(Index& index, std::span<const std::string> roots, const ScanReport& report,
                         std::stop_token stop = {},
                         std::shared_ptr<const Library> remembered = nullptr,
                         KeptByScans* kept = nullptr);

// Whether a path is one of the roots or lies below one.
bool is_within(std::string_view path, std::span<const std::string> roots);

// "12 files are left out: 10 .mid, 2 .ra", the most frequent kinds first; empty when there are
// none.
std::string line_of(const LeftOut& left_out);

}  // namespace host::media
