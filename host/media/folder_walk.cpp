#include "host/media/folder_walk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <set>
#include <string_view>

#include "host/media/cloud_song.h"
#include "host/media/hash.h"
#include "host/media/tag_reader.h"

namespace host::media {
namespace {

constexpr std::array<std::string_view, 3> picture_stems = {"cover", "folder", "front"};
constexpr std::array<std::string_view, 3> picture_suffixes = {".jpg", ".jpeg", ".png"};
constexpr int not_a_picture = static_cast<int>(picture_stems.size() * picture_suffixes.size());

struct CloseDirectory {
  void operator()(DIR* directory) const { ::closedir(directory); }
};
using DirectoryRef = std::unique_ptr<DIR, CloseDirectory>;

// The lower the rank, the better the picture; `not_a_picture` for any other name.
int picture_rank(std::string_view name) {
  std::string lower{name};
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  }
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

std::string joined(const std::string& folder, const char* name) {
  return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

class Walk {
 public:
  explicit Walk(const WalkVisitor& visitor) : visitor_(visitor) {}

  void run(std::span<const std::string> roots, const std::stop_token& stop) {
    waiting_.assign(roots.rbegin(), roots.rend());
    while (!waiting_.empty() && !stop.stop_requested()) {
      const std::string path = std::move(waiting_.back());
      waiting_.pop_back();
      visit(path);
    }
  }

 private:
  void visit(const std::string& path) {
    const DirectoryRef directory{::opendir(path.c_str())};
    struct stat status {};
    if (!directory || ::fstat(::dirfd(directory.get()), &status) != 0) {
      visitor_.on_unreadable(path, std::strerror(errno));
      return;
    }
    if (!visited_.insert({status.st_dev, status.st_ino}).second) return;
    folder_ = {path, {}, {}};
    best_rank_ = not_a_picture;
    if (const int error = read(directory.get()); error != 0) {
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
    if (entry.d_name[0] == '.') return true;
    if (entry.d_type == DT_DIR) {
      waiting_.push_back(joined(folder_.path, entry.d_name));
      return true;
    }
    const bool is_song = has_audio_name(entry.d_name) || has_cloud_name(entry.d_name);
    const int rank = is_song ? not_a_picture : picture_rank(entry.d_name);
    const bool may_be_folder = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    if (!is_song && rank == not_a_picture && !may_be_folder) return true;

    struct stat status {};
    if (::fstatat(::dirfd(directory), entry.d_name, &status, 0) != 0) {
      if (errno == EACCES && entry.d_type != DT_LNK) return false;
      report_unreachable(entry.d_name, errno);
      return true;
    }
    if (S_ISDIR(status.st_mode)) waiting_.push_back(joined(folder_.path, entry.d_name));
    if (!S_ISREG(status.st_mode)) return true;
    if (is_song) folder_.songs.push_back({joined(folder_.path, entry.d_name), stamp_of(status)});
    if (rank < best_rank_) take_picture(entry.d_name, rank, stamp_of(status));
    return true;
  }

  void report_unreachable(const char* name, int error) const {
    if (error != ENOENT) visitor_.on_unreachable(joined(folder_.path, name), std::strerror(error));
  }

  void take_picture(const char* name, int rank, const FileStamp& stamp) {
    best_rank_ = rank;
    folder_.picture.path = joined(folder_.path, name);
    const auto seed = static_cast<std::uint64_t>(stamp.modified_ns ^ (stamp.size << 32));
    folder_.picture.key = identifier_from(stable_hash(folder_.picture.path, seed));
  }

  const WalkVisitor& visitor_;
  std::vector<std::string> waiting_;
  std::set<std::pair<dev_t, ino_t>> visited_;
  WalkedFolder folder_;
  int best_rank_ = not_a_picture;
};

}  // namespace

void walk_folders(std::span<const std::string> roots, const WalkVisitor& visitor,
                  std::stop_token stop) {
  Walk{visitor}.run(roots, stop);
}

}  // namespace host::media
