#include "host/launcher/throwaway_folder.h"

#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "sonavue-";
constexpr std::string_view kPlaceholders = "XXXXXX";

void remove_with_contents(const fs::path& folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

bool is_own_throwaway_folder(const fs::path& path) {
  const std::string name = path.filename();
  if (!name.starts_with(kPrefix) || name.size() != kPrefix.size() + kPlaceholders.size())
    return false;
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

void remove_abandoned_folders_in(const fs::path& parent) {
  std::error_code error;
  fs::directory_iterator entries(parent, error);
  for (const auto end = fs::end(entries); !error && entries != end; entries.increment(error)) {
    const fs::path& folder = entries->path();
    FolderLock lock;
    if (is_own_throwaway_folder(folder) && lock.take_over(folder) == FolderLock::Outcome::Taken)
      remove_with_contents(folder);
  }
}

}  // namespace

std::vector<fs::path> temporary_folders() {
  std::error_code error;
  return {fs::temp_directory_path(error), "/tmp"};
}

std::vector<fs::path> session_folders() {
  std::vector<fs::path> folders = temporary_folders();
  if (const char* runtime = std::getenv("XDG_RUNTIME_DIR"))
    folders.emplace(folders.begin(), runtime);
  return folders;
}

ThrowawayFolder::ThrowawayFolder(const std::vector<fs::path>& parents, const Fits& fits) {
  static_cast<void>(std::any_of(parents.begin(), parents.end(),
                                [&](const fs::path& parent) { return make_in(parent, fits); }));
}

ThrowawayFolder::~ThrowawayFolder() {
  if (!path_.empty()) remove_with_contents(path_);
}

bool ThrowawayFolder::make_in(const fs::path& parent, const Fits& fits) {
  std::string name = parent / (std::string(kPrefix) + std::string(kPlaceholders));
  if (!parent.is_absolute() || !mkdtemp(name.data())) return false;
  if (lock_.take(name) == FolderLock::Outcome::Taken && fits(name)) {
    path_ = name;
    return true;
  }
  remove_with_contents(name);
  return false;
}

void remove_abandoned_folders() {
  for (const fs::path& parent : session_folders())
    remove_abandoned_folders_in(parent);
}

}  // namespace host::launcher
