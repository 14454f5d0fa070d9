#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/basics/descriptor.h"

namespace host::media {

// Notices changes in folders that a walk has been through. It says only that something has changed:
// what it is, the next walk finds out. Each walk is a round, which names every folder again, so
// that folders that have come are watched from then on and folders that have gone no longer are.
class FolderWatch {
 public:
  // A watch costs the system about a kilobyte, and a user has a limited number of them.
  static constexpr std::size_t kMostFolders = 32768;

  explicit FolderWatch(std::size_t most_folders = kMostFolders);

  // Becomes readable when `take_changes` has something to read.
  int descriptor() const { return events_.get(); }

  void begin_round();
  // Watches the songs, pictures and folders in a folder. Call this before it is read, so that no
  // change falls in between.
  void watch(const std::string& folder);
  // Watches a path that is not a folder below the others: a song on its own, a link, or a folder
  // that is missing, for which the nearest folder above is watched.
  void watch_name(const std::string& path);
  void end_round();

  // False when there are more folders than can be watched: only walks from time to time find the
  // changes in the others.
  bool sees_everything() const { return events_ && !has_run_out_; }

  // Reads what has been reported since the last call, and returns whether it makes a walk
  // necessary. The time this takes is bounded, however much is reported.
  bool take_changes();
  std::size_t count() const { return watched_.size(); }

 private:
  struct Watched {
    std::string folder;
    unsigned round = 0;
    bool is_whole = false;        // Every song, picture and folder in it counts.
    std::set<std::string> names;  // These count in any case.
  };

  Watched* add(const std::string& folder);
  bool is_change(int watch, unsigned kind, std::string_view name);
  bool is_change_of_name(const Watched& watched, unsigned kind, const std::string& name) const;
  void say_overflow();

  Descriptor events_;
  std::size_t most_folders_;
  std::unordered_map<int, Watched> watched_;
  unsigned round_ = 0;
  std::size_t in_round_ = 0;  // How many of the folders this round has named.
  bool has_run_out_ = false;
  bool has_said_run_out_ = false;
  bool has_said_overflow_ = false;
};

}  // namespace host::media
