#include "host/media/scan.h"

#include <fmt/core.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <future>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "host/media/cloud_song.h"
#include "host/media/fetch_ahead.h"
#include "host/media/folder_walk.h"
#include "host/media/hash.h"
#include "host/media/library_builder.h"
#include "host/media/log.h"
#include "host/media/picture.h"

namespace host::media {
namespace {

constexpr std::size_t songs_per_transaction = 500;
constexpr std::size_t files_per_report = 50;
// In one folder. Those of the next one are fetched as well.
constexpr std::size_t files_ahead = 64;

bool has_vanished(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

// The state of a song from the index: not found yet, unchanged, or read again.
enum class Fate : char { unseen, unchanged, replaced };

class Scan {
 public:
  // The index is loaded while the first folders are walked; until then nothing else uses it.
  Scan(Index& index, const ScanReport& report, KeptByScans& kept)
      : index_(index),
        report_(report),
        kept_(kept),
        loading_(std::async(std::launch::async, [this] { load_files(); })) {}

  ScanOutcome run(std::span<const std::string> roots, const std::stop_token& stop,
                  std::shared_ptr<const Library> remembered) {
    for (const std::string& root : roots)
      roots_.insert(root);
    walk(roots, stop);
    loading_.wait();
    if (known_.empty()) progress_.to_see = waiting_songs();
    visit_waiting(stop);
    if (!stop.stop_requested()) forget_unseen();
    if (!remembered || !is_as_it_was(*remembered)) {
      collect_unchanged();
      remembered = nullptr;
    }
    save();
    report_(progress_);
    return {progress_, remembered ? std::move(remembered) : found_.finish(), std::move(left_out_)};
  }

 private:
  void walk(std::span<const std::string> roots, const std::stop_token& stop) {
    WalkVisitor visitor;
    visitor.on_folder = [&](WalkedFolder& folder) {
      waiting_.push_back(std::move(folder));
      // A first scan counts the songs before it reads them.
      if (is_loaded() && !known_.empty()) visit_waiting(stop);
    };
    visitor.on_unreadable = [this](const std::string& path, const std::string& reason) {
      ++progress_.unreadable_folders;
      complain(fmt::format("the folder {} cannot be read: {}", path, reason));
      unreadable_.push_back(path);
    };
    visitor.on_unreachable = [this](const std::string& path, const std::string& reason) {
      complain(fmt::format("{} cannot be reached: {}; it is skipped", path, reason));
    };
    visitor.on_left_out = [this](const std::string& suffix) { ++left_out_[suffix]; };
    if (FolderWatch* watch = kept_.watch) {
      watch->begin_round();
      visitor.on_enter = [watch](const std::string& path) { watch->watch(path); };
      visitor.on_name = [watch](const std::string& path) { watch->watch_name(path); };
    }
    walk_folders(roots, visitor, stop);
    if (kept_.watch && !stop.stop_requested()) kept_.watch->end_round();
  }

  void complain(const std::string& line) {
    if (kept_.complaints.insert(line).second) log_warning(line);
  }

  std::size_t waiting_songs() const {
    std::size_t count = 0;
    for (const WalkedFolder& folder : waiting_)
      count += folder.songs.size();
    return count;
  }

  void load_files() {
    KnownFiles files = index_.load_files();
    known_ = std::move(files.songs);
    fates_.resize(known_.size(), Fate::unseen);
    known_by_path_.reserve(known_.size());
    for (std::size_t i = 0; i < known_.size(); ++i) {
      known_by_path_.emplace(known_[i].path, i);
      headers_.emplace(known_[i].folder_picture.key, known_[i].folder_picture.header);
    }
    for (RefusedFile& file : files.refused)
      refused_.emplace(std::move(file.path), file.stamp);
  }

  bool is_loaded() const {
    return loading_.wait_for(std::chrono::seconds{0}) == std::future_status::ready;
  }

  void visit_waiting(const std::stop_token& stop) {
    if (progress_.to_see > 0) report_(progress_);
    for (std::size_t i = 0; i < waiting_.size(); ++i) {
      if (i == 0) fetch(waiting_[0], 0);
      if (i + 1 < waiting_.size()) fetch(waiting_[i + 1], 0);
      visit(waiting_[i], stop);
    }
    waiting_.clear();
  }

  bool is_as_it_was(const Library& remembered) const {
    return !has_changes_ && std::ranges::count(fates_, Fate::unseen) == 0 &&
           remembered.tracks().size() == known_.size();
  }

  void visit(WalkedFolder& folder, const std::stop_token& stop) {
    if (!folder.songs.empty()) find_header(folder.picture);
    for (std::size_t i = 0; i < folder.songs.size(); ++i) {
      if (stop.stop_requested()) return;
      if (i % files_ahead == 0) fetch(folder, i + files_ahead);
      ++progress_.seen;
      take(folder.songs[i], folder.picture);
      if (progress_.seen % files_per_report == 0) report_(progress_);
      if (changes_.count() >= songs_per_transaction) save();
    }
  }

  // Fetches some of the folder's songs, from a place on, if they will be read.
  void fetch(const WalkedFolder& folder, std::size_t from) const {
    const std::size_t end = std::min(folder.songs.size(), from + files_ahead);
    for (std::size_t i = from; i < end; ++i) {
      const WalkedFile& file = folder.songs[i];
      if (!is_unchanged(file)) fetch_ahead(file.path, file.stamp.size);
    }
  }

  bool is_unchanged(const WalkedFile& file) const {
    if (const auto known = known_by_path_.find(file.path); known != known_by_path_.end())
      return known_[known->second].stamp == file.stamp;
    const auto refused = refused_.find(file.path);
    return refused != refused_.end() && refused->second == file.stamp;
  }

  // A picture whose key is known has not changed since it was last read.
  void find_header(FolderPicture& picture) {
    if (picture.key == 0) return;
    const auto [known, is_new] = headers_.try_emplace(picture.key);
    if (is_new) {
      known->second = read_picture_file_header(picture.path);
      if (!known->second.is_usable()) complain_of_cover(picture.path);
    }
    picture.header = known->second;
  }

  void complain_of_cover(const std::string& path) const {
    log_warning(fmt::format("the cover in {} cannot be shown", path));
  }

  void take(WalkedFile& file, const FolderPicture& picture) {
    if (const auto known = known_by_path_.find(file.path); known != known_by_path_.end()) {
      return take_known(known->second, file, picture);
    }
    const auto refused = refused_.find(file.path);
    if (refused != refused_.end()) {
      is_refusal_seen_.insert(refused->first);
      if (refused->second == file.stamp) {
        ++progress_.skipped;
        return;
      }
    }
    read(file, picture, identifier_for(file));
  }

  void take_known(std::size_t index, WalkedFile& file, const FolderPicture& picture) {
    KnownFile& known = known_[index];
    const bool is_unchanged = known.stamp == file.stamp;
    fates_[index] = is_unchanged ? Fate::unchanged : Fate::replaced;
    if (!is_unchanged) return read(file, picture, known.id);
    if (known.folder_picture == picture) return;
    prepare_for_changes();
    known.folder_picture = picture;
    SongRecord* record = record_of(index);
    if (!record) return;
    record->folder_picture = picture;
    changes_.songs.push_back(*record);
  }

  // The tags of unchanged songs are needed as soon as anything differs from the last scan, and must
  // be loaded before the first change is written.
  void prepare_for_changes() {
    if (std::exchange(has_changes_, true)) return;
    load_records();
  }

  void load_records() {
    records_ = index_.load().songs;
    are_records_loaded_ = true;
  }

  // Null when the index was lost since its files were loaded.
  SongRecord* record_of(std::size_t index) {
    const bool is_there =
        records_.size() == known_.size() && records_[index].id == known_[index].id;
    return is_there ? &records_[index] : nullptr;
  }

  void collect_unchanged() {
    if (!are_records_loaded_) load_records();
    for (std::size_t i = 0; i < known_.size(); ++i) {
      if (fates_[i] != Fate::unchanged) continue;
      if (const SongRecord* record = record_of(i)) {
        found_.add(*record);
      } else {
        WalkedFile file{known_[i].path, known_[i].stamp};
        read(file, known_[i].folder_picture, known_[i].id);
      }
    }
  }

  void read(WalkedFile& file, const FolderPicture& picture, std::uint64_t id) {
    prepare_for_changes();
    ++progress_.read;
    TagReading reading = read_song(file.path);
    if (reading.has_broken_picture) complain_of_cover(file.path);
    if (!reading.tags && has_vanished(file.path)) {
      --progress_.seen;
      changes_.forgotten.push_back(std::move(file.path));
      return;
    }
    if (!reading.tags) {
      ++progress_.skipped;
      if (!reading.refusal.empty() && !roots_.contains(file.path)) {
        log_warning(fmt::format("{} {}; it is skipped", file.path, reading.refusal));
      }
      changes_.forgotten.push_back(file.path);
      changes_.refused.push_back({std::move(file.path), file.stamp});
      return;
    }
    if (refused_.contains(file.path)) changes_.forgotten.push_back(file.path);
    changes_.songs.push_back(
        {id, std::move(file.path), file.stamp, picture, std::move(*reading.tags)});
    found_.add(changes_.songs.back());
  }

  // A new path is either a new song or a moved one: same size and time, and the old path is gone.
  // Only an unambiguous move keeps its identifier.
  std::uint64_t identifier_for(const WalkedFile& file) {
    prepare_for_new_files();
    std::size_t moved = known_.size();
    const auto [first, last] = known_by_stamp_.equal_range(file.stamp);
    for (auto candidate = first; candidate != last; ++candidate) {
      if (fates_[candidate->second] != Fate::unseen ||
          !has_vanished(known_[candidate->second].path))
        continue;
      if (moved != known_.size()) return fresh_identifier(file.path);
      moved = candidate->second;
    }
    if (moved == known_.size()) return fresh_identifier(file.path);
    fates_[moved] = Fate::replaced;
    changes_.forgotten.push_back(known_[moved].path);
    return known_[moved].id;
  }

  // Most scans find no new file and skip this work.
  void prepare_for_new_files() {
    if (is_prepared_) return;
    is_prepared_ = true;
    for (std::size_t i = 0; i < known_.size(); ++i) {
      known_by_stamp_.emplace(known_[i].stamp, i);
      used_ids_.insert(known_[i].id);
    }
  }

  std::uint64_t fresh_identifier(const std::string& path) {
    std::uint64_t id = identifier_from(stable_hash(path));
    while (!used_ids_.insert(id).second)
      id = identifier_from(id + 1);
    return id;
  }

  // What is below a folder that cannot be read at the moment is not gone.
  void forget_unseen() {
    if (std::ranges::count(fates_, Fate::unseen) > 0) prepare_for_changes();
    const auto forget = [this](const std::string& path) {
      if (!is_within(path, unreadable_)) changes_.forgotten.push_back(path);
    };
    for (std::size_t i = 0; i < known_.size(); ++i) {
      if (fates_[i] == Fate::unseen) forget(known_[i].path);
    }
    for (const auto& [path, stamp] : refused_) {
      if (!is_refusal_seen_.contains(path)) forget(path);
    }
  }

  void save() {
    index_.apply(changes_);
    changes_ = {};
  }

  Index& index_;
  const ScanReport& report_;
  KeptByScans& kept_;
  ScanProgress progress_;
  LeftOut left_out_;
  std::unordered_set<std::string> roots_;
  std::vector<KnownFile> known_;
  std::vector<Fate> fates_;          // One for each of known_.
  std::vector<SongRecord> records_;  // The same, once they are loaded.
  bool are_records_loaded_ = false;
  bool has_changes_ = false;
  std::unordered_map<std::string_view, std::size_t> known_by_path_;
  std::unordered_map<std::uint64_t, PictureHeader> headers_;  // Of folders' pictures, by key.
  bool is_prepared_ = false;
  std::multimap<FileStamp, std::size_t> known_by_stamp_;
  std::unordered_set<std::uint64_t> used_ids_;
  std::unordered_map<std::string, FileStamp> refused_;
  std::unordered_set<std::string_view> is_refusal_seen_;
  std::vector<std::string> unreadable_;  // Folders.
  LibraryBuilder found_;
  IndexChanges changes_;
  std::vector<WalkedFolder> waiting_;  // Walked, but not yet compared with the index.
  std::future<void> loading_;          // Last, so it ends before the members that it fills.
};

}  // namespace

std::shared_ptr<const Library> remembered_library(
    Index& index, std::optional<std::span<const std::string>> roots) {
  LibraryBuilder builder;
  const bool is_whole = index.show_songs([&builder, roots](const SongRecord& song) {
    if (!roots || is_within(song.path, *roots)) builder.add(song);
  });
  return is_whole ? builder.finish() : Library::build({});
}

ScanOutcome scan_folders(Index& index, std::span<const std::string> roots, const ScanReport& report,
                         std::stop_token stop, std::shared_ptr<const Library> remembered,
                         KeptByScans* kept) {
  KeptByScans own;
  return Scan{index, report, kept ? *kept : own}.run(roots, stop, std::move(remembered));
}

bool is_within(std::string_view path, std::span<const std::string> roots) {
  return std::ranges::any_of(roots, [path](const std::string& root) {
    if (!path.starts_with(root)) return false;
    return path.size() == root.size() || root.ends_with('/') || path[root.size()] == '/';
  });
}

std::string line_of(const LeftOut& left_out) {
  std::vector<std::pair<std::string, std::size_t>> kinds{left_out.begin(), left_out.end()};
  std::ranges::stable_sort(kinds, std::greater{}, [](const auto& kind) { return kind.second; });
  std::size_t files = 0;
  std::string list;
  for (const auto& [suffix, count] : kinds) {
    files += count;
    list += fmt::format("{}{} {}", list.empty() ? "" : ", ", count, suffix);
  }
  if (files == 0) return {};
  return fmt::format("{} left out: {}",
                     files == 1 ? "1 file is" : fmt::format("{} files are", files), list);
}

}  // namespace host::media
