#include "host/media/folder_walk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string_view>

#include "host/media/hash.h"
#include "host/media/song_name.h"

namespace host::media {
namespace {

constexpr std::array<std::string_view, 3> picture_stems = {"cover", "folder", "front"};
constexpr std::array<std::string_view, 3> picture_suffixes = {".jpg", ".jpeg", ".png"};
// Sound of other kinds, which a user may miss.
constexpr std::array<std::string_view, 22> unplayed_suffixes = {
    ".3gp", ".ac3", ".amr",  ".ape", ".au",  ".caf", ".dff", ".dsf", ".dts", ".it",  ".m4b",
    ".m4p", ".mid", ".midi", ".mka", ".mod", ".mp2", ".mpc", ".ra",  ".spx", ".tta", ".xm"};
constexpr int not_a_picture = static_cast<int>(picture_stems.size() * picture_suffixes.size());

struct CloseDirectory {
  void operator()(DIR* directory) const { ::closedir(directory); }
};
using DirectoryRef = std::unique_ptr<DIR, CloseDirectory>;

// The lower the rank, the better the picture; `not_a_picture` for any other name.
int picture_rank(std::string_view name) {
  const std::string lower = in_small_letters(name);
  int rank = 0;
  for (const auto stem : picture_stems) {
    for (const auto suffix : picture_suffixes) {
      const std::string_view rest = lower;
      if (rest.starts_with(stem) && rest.substr(stem.size()) == suffix) return rank;
      ++rank;
    }
  }
  return not_a_picture;
}

// Songs that are named one by one, by the folder that they are in.
using NamedSongs = std::map<std::string, std::set<std::string, std::less<>>>;

class Walk {
 public:
  explicit Walk(const WalkVisitor& visitor) : visitor_(visitor) {}

  void run(std::span<const std::string> roots, const std::stop_token& stop) {
    for (const std::string& root : roots)
      take_root(root);
    std::ranges::reverse(waiting_);
    while (!waiting_.empty() && !stop.stop_requested()) {
      const std::string path = std::move(waiting_.back());
      waiting_.pop_back();
      visit(path);
    }
    for (const auto& [folder, names] : named_songs_) {
      if (stop.stop_requested()) return;
      names_ = &names;
      visit_named(folder);
    }
  }

 private:
  void take_root(const std::string& root) {
    struct stat status {};
    const bool is_there = ::stat(root.c_str(), &status) == 0;
    if (!is_there || !S_ISDIR(status.st_mode) || ::access(root.c_str(), R_OK | X_OK) != 0)
      tell_name(root);
    if (is_there && S_ISREG(status.st_mode)) {
      const std::filesystem::path path{root};
      named_songs_[path.parent_path()].insert(path.filename());
    } else if (is_there || !is_song_name(root)) {
      waiting_.push_back(root);
    }
  }

  void tell_name(const std::string& path) const {
    if (visitor_.on_name) visitor_.on_name(path);
  }

  void visit(const std::string& path) {
    if (visitor_.on_enter) visitor_.on_enter(path);
    const DirectoryRef directory{::opendir(path.c_str())};
    struct stat status {};
    if (!directory || ::fstat(::dirfd(directory.get()), &status) != 0) {
      visitor_.on_unreadable(path, std::strerror(errno));
      return;
    }
    if (visited_.insert({status.st_dev, status.st_ino}).second) read_folder(path, directory.get());
  }

  void visit_named(const std::string& path) {
    const DirectoryRef directory{::opendir(path.c_str())};
    if (directory) read_folder(path, directory.get());
    if (!directory) visitor_.on_unreadable(path, std::strerror(errno));
  }

  void read_folder(const std::string& path, DIR* directory) {
    folder_ = {path, {}, {}};
    best_rank_ = not_a_picture;
    if (const int error = read(directory); error != 0) {
      visitor_.on_unreadable(path, std::strerror(error));
    }
    visitor_.on_folder(folder_);
  }

  // Returns why the rest of the folder cannot be read; 0 when all of it has been.
  int read(DIR* directory) {
    for (;;) {
      errno = 0;
      const dirent* entry = ::readdir(directory);
      if (entry == nullptr) return errno;
      if (!look_at(directory, *entry)) return EACCES;
    }
  }

  // Returns false when the folder may be listed but not entered.
  bool look_at(DIR* directory, const dirent& entry) {
    const std::string_view name = entry.d_name;
    if (name.front() == '.' && !is_named(name)) return true;
    if (entry.d_type == DT_DIR) {
      if (!names_) waiting_.push_back(joined_path(folder_.path, name));
      return true;
    }
    const bool is_song = names_ ? is_named(name) : is_song_name(name);
    const int rank = is_song ? not_a_picture : picture_rank(name);
    const bool may_be_folder = !names_ && (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN);
    if (!is_song && rank == not_a_picture && !may_be_folder) {
      leave_out(name);
      return true;
    }

    struct stat status {};
    if (::fstatat(::dirfd(directory), entry.d_name, &status, 0) != 0) {
      if (errno == EACCES && entry.d_type != DT_LNK) return false;
      report_unreachable(entry.d_name, errno);
      return true;
    }
    if (S_ISDIR(status.st_mode) && may_be_folder) follow(name);
    if (!S_ISREG(status.st_mode)) return true;
    if (is_song)
      folder_.songs.push_back({joined_path(folder_.path, entry.d_name), stamp_of(status)});
    if (rank < best_rank_) take_picture(entry.d_name, rank, stamp_of(status));
    return true;
  }

  bool is_named(std::string_view name) const { return names_ && names_->contains(name); }

  void follow(std::string_view name) {
    waiting_.push_back(joined_path(folder_.path, name));
    tell_name(waiting_.back());
  }

  void leave_out(std::string_view name) const {
    if (names_ || !visitor_.on_left_out) return;
    const std::string suffix = in_small_letters(suffix_of(name));
    if (std::ranges::find(unplayed_suffixes, suffix) != unplayed_suffixes.end())
      visitor_.on_left_out(suffix);
  }

  void report_unreachable(const char* name, int error) const {
    if (error != ENOENT)
      visitor_.on_unreachable(joined_path(folder_.path, name), std::strerror(error));
  }

  void take_picture(const char* name, int rank, const FileStamp& stamp) {
    best_rank_ = rank;
    folder_.picture.path = joined_path(folder_.path, name);
    const auto seed = static_cast<std::uint64_t>(stamp.modified_ns ^ (stamp.size << 32));
    folder_.picture.key = identifier_from(stable_hash(folder_.picture.path, seed));
  }

  const WalkVisitor& visitor_;
  std::vector<std::string> waiting_;
  std::set<std::pair<dev_t, ino_t>> visited_;
  WalkedFolder folder_;
  int best_rank_ = not_a_picture;
  NamedSongs named_songs_;
  const NamedSongs::mapped_type* names_ = nullptr;  // While only these are looked for.
};

}  // namespace

bool is_walked_name(std::string_view name) {
  return is_song_name(name) || picture_rank(name) != not_a_picture;
}

std::string joined_path(const std::string& folder, std::string_view name) {
  std::string path = folder.ends_with('/') ? folder : folder + '/';
  return path.append(name);
}

void walk_folders(std::span<const std::string> roots, const WalkVisitor& visitor,
                  std::stop_token stop) {
  Walk{visitor}.run(roots, stop);
}

}  // namespace host::media
