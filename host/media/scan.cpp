#include "host/media/scan.h"

#include <fmt/core.h>
#include <sys/stat.h>

#include <cerrno>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "host/media/folder_walk.h"
#include "host/media/hash.h"
#include "host/media/log.h"
#include "host/media/tag_reader.h"

namespace host::media {
namespace {

constexpr std::size_t songs_per_transaction = 500;
constexpr std::size_t files_per_report = 50;

bool is_below(std::string_view path, std::span<const std::string> roots) {
  for (const std::string& root : roots) {
    const bool is_inside = path.starts_with(root) && path.size() > root.size();
    if (is_inside && (root.ends_with('/') || path[root.size()] == '/')) return true;
  }
  return false;
}

bool has_vanished(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

// What became of a song that the index knew: not met yet, as it was, or read anew.
enum class Fate : char { unseen, unchanged, replaced };

class Scan {
 public:
  Scan(Index& index, const ScanReport& report) : index_(index), report_(report) {
    IndexContents contents = index_.load();
    known_ = std::move(contents.songs);
    fates_.resize(known_.size(), Fate::unseen);
    known_by_path_.reserve(known_.size());
    for (std::size_t i = 0; i < known_.size(); ++i)
      known_by_path_.emplace(known_[i].path, i);
    for (RefusedFile& file : contents.refused)
      refused_.emplace(std::move(file.path), file.stamp);
  }

  ScanOutcome run(std::span<const std::string> roots, const std::stop_token& stop) {
    const WalkVisitor visitor{
        [&](WalkedFolder& folder) { visit(folder, stop); },
        [this](const std::string& path, const std::string& reason) {
          ++progress_.unreadable_folders;
          log_warning(fmt::format("the folder {} cannot be read: {}", path, reason));
        }};
    walk_folders(roots, visitor, stop);
    if (!stop.stop_requested()) forget_unseen();
    save();
    report_(progress_);
    for (std::size_t i = 0; i < known_.size(); ++i) {
      if (fates_[i] == Fate::unchanged) found_.push_back(std::move(known_[i]));
    }
    return {progress_, Library::build(found_)};
  }

 private:
  void visit(WalkedFolder& folder, const std::stop_token& stop) {
    for (WalkedFile& file : folder.songs) {
      if (stop.stop_requested()) return;
      ++progress_.seen;
      take(file, folder.picture);
      if (progress_.seen % files_per_report == 0) report_(progress_);
      if (changes_.count() >= songs_per_transaction) save();
    }
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
    SongRecord& record = known_[index];
    const bool is_unchanged = record.stamp == file.stamp;
    fates_[index] = is_unchanged ? Fate::unchanged : Fate::replaced;
    if (!is_unchanged) return read(file, picture, record.id);
    if (record.folder_picture == picture) return;
    record.folder_picture = picture;
    changes_.songs.push_back(record);
  }

  void read(WalkedFile& file, const FolderPicture& picture, std::uint64_t id) {
    ++progress_.read;
    TagReading reading = read_tags(file.path);
    if (!reading.tags) {
      ++progress_.skipped;
      log_warning(fmt::format("{} {}; it is left out", file.path, reading.refusal));
      changes_.forgotten.push_back(file.path);
      changes_.refused.push_back({std::move(file.path), file.stamp});
      return;
    }
    if (refused_.contains(file.path)) changes_.forgotten.push_back(file.path);
    SongRecord record{id, std::move(file.path), file.stamp, picture, std::move(*reading.tags)};
    changes_.songs.push_back(record);
    found_.push_back(std::move(record));
  }

  // A new path is either a new song or a song that was moved: one of the same size and time whose
  // old path is gone. Only a move that is beyond doubt keeps its identifier.
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

  // Most scans meet no new file, and need not pay for this.
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

  void forget_unseen() {
    for (std::size_t i = 0; i < known_.size(); ++i) {
      if (fates_[i] == Fate::unseen) changes_.forgotten.push_back(known_[i].path);
    }
    for (const auto& [path, stamp] : refused_) {
      if (!is_refusal_seen_.contains(path)) changes_.forgotten.push_back(path);
    }
  }

  void save() {
    index_.apply(changes_);
    changes_ = {};
  }

  Index& index_;
  const ScanReport& report_;
  ScanProgress progress_;
  std::vector<SongRecord> known_;
  std::vector<Fate> fates_;  // One for each of known_.
  std::unordered_map<std::string_view, std::size_t> known_by_path_;
  bool is_prepared_ = false;
  std::multimap<FileStamp, std::size_t> known_by_stamp_;
  std::unordered_set<std::uint64_t> used_ids_;
  std::unordered_map<std::string, FileStamp> refused_;
  std::unordered_set<std::string_view> is_refusal_seen_;
  std::vector<SongRecord> found_;
  IndexChanges changes_;
};

}  // namespace

std::shared_ptr<const Library> remembered_library(Index& index,
                                                  std::span<const std::string> roots) {
  std::vector<SongRecord> songs = index.load().songs;
  std::erase_if(songs, [roots](const SongRecord& song) { return !is_below(song.path, roots); });
  return Library::build(songs);
}

ScanOutcome scan_folders(Index& index, std::span<const std::string> roots, const ScanReport& report,
                         std::stop_token stop) {
  return Scan{index, report}.run(roots, stop);
}

}  // namespace host::media
