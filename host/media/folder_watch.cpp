#include "host/media/folder_watch.h"

#include <fmt/core.h>
#include <sys/inotify.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "host/media/folder_walk.h"
#include "host/media/log.h"

namespace host::media {
namespace {

namespace fs = std::filesystem;

constexpr unsigned watched_kinds = IN_CREATE | IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO |
                                   IN_DELETE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF |
                                   IN_ONLYDIR;
constexpr unsigned kinds_of_the_folder_itself = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT;
// A program that fills the queue as fast as it is read does not keep the reader for ever.
constexpr int most_reads_at_once = 16;
constexpr std::size_t bytes_per_read = 64 * 1024;

// A song that is being written is a change when it is complete.
bool is_empty_file(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0;
}

}  // namespace

FolderWatch::FolderWatch(std::size_t most_folders)
    : events_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)), most_folders_(most_folders) {}

void FolderWatch::begin_round() {
  ++round_;
  in_round_ = 0;
  has_run_out_ = false;
}

void FolderWatch::watch(const std::string& folder) {
  if (Watched* watched = add(folder)) watched->is_whole = true;
}

void FolderWatch::watch_name(const std::string& path) {
  fs::path folder = fs::path{path}.parent_path();
  fs::path name = fs::path{path}.filename();
  Watched* watched = add(folder);
  while (!watched && folder.has_relative_path() && !has_run_out_) {
    name = folder.filename();
    folder = folder.parent_path();
    watched = add(folder);
  }
  if (watched) watched->names.insert(name.string());
}

FolderWatch::Watched* FolderWatch::add(const std::string& folder) {
  if (!events_) return nullptr;
  const int watch = ::inotify_add_watch(events_.get(), folder.c_str(), watched_kinds);
  if (watch < 0) {
    // A folder that cannot be read or is gone is not short of watches.
    if (errno == ENOSPC || errno == ENOMEM) has_run_out_ = true;
    return nullptr;
  }
  Watched& watched = watched_[watch];
  if (watched.round == round_) return &watched;
  if (in_round_ == most_folders_) {
    watched_.erase(watch);
    ::inotify_rm_watch(events_.get(), watch);
    has_run_out_ = true;
    return nullptr;
  }
  ++in_round_;
  watched = {folder, round_, false, {}};
  return &watched;
}

void FolderWatch::end_round() {
  std::erase_if(watched_, [this](const auto& entry) {
    const bool is_gone = entry.second.round != round_;
    if (is_gone) ::inotify_rm_watch(events_.get(), entry.first);
    return is_gone;
  });
  if (sees_everything() || has_said_run_out_) return;
  has_said_run_out_ = true;
  log_warning(
      fmt::format("only {} folders of music can be watched; changes in the others are found within "
                  "minutes (the limit is fs.inotify.max_user_watches)",
                  watched_.size()));
}

bool FolderWatch::take_changes() {
  bool has_changed = false;
  alignas(inotify_event) std::array<char, bytes_per_read> bytes;
  for (int reads = 0; reads < most_reads_at_once; ++reads) {
    const auto count = ::read(events_.get(), bytes.data(), bytes.size());
    if (count <= 0) break;
    for (std::size_t at = 0; at < static_cast<std::size_t>(count);) {
      inotify_event event{};
      std::memcpy(&event, bytes.data() + at, sizeof event);
      const char* name = bytes.data() + at + sizeof event;
      at += sizeof event + event.len;
      const std::string_view text{name, event.len ? ::strnlen(name, event.len) : 0};
      if (event.mask & IN_IGNORED) {
        watched_.erase(event.wd);
      } else if (!has_changed) {
        has_changed = is_change(event.wd, event.mask, text);
      }
      if (event.mask & IN_Q_OVERFLOW) say_overflow();
    }
  }
  return has_changed;
}

bool FolderWatch::is_change(int watch, unsigned kind, std::string_view name) {
  if (kind & IN_Q_OVERFLOW) return true;
  const auto found = watched_.find(watch);
  if (found == watched_.end()) return false;
  if (kind & kinds_of_the_folder_itself) return true;
  // Without a name it is the folder's own permissions.
  return name.empty() || is_change_of_name(found->second, kind, std::string{name});
}

bool FolderWatch::is_change_of_name(const Watched& watched, unsigned kind,
                                    const std::string& name) const {
  if (watched.names.contains(name)) return true;
  if (!watched.is_whole || name.front() == '.') return false;
  if (kind & IN_ISDIR) return true;
  const std::string path = joined_path(watched.folder, name);
  std::error_code ignored;
  if (!is_walked_name(name))
    return (kind & (IN_CREATE | IN_MOVED_TO)) && fs::is_symlink(path, ignored);
  return !(kind & IN_CREATE) || !is_empty_file(path);
}

void FolderWatch::say_overflow() {
  if (std::exchange(has_said_overflow_, true)) return;
  log_note("more changes in the folders of music than the system reports; all files are looked at");
}

}  // namespace host::media
