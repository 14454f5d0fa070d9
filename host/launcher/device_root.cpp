#include "host/launcher/device_root.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "host/files/copy_file.h"
#include "host/files/folder.h"
#include "host/files/read_file.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;
using Failure = std::optional<std::string>;

/// This mark is in a device's root until its first files are complete.
constexpr const char* kBeingMade = ".being-made";

constexpr const char* kFolders[] = {
    "var/mobile/Library/Preferences",      "Library/MobileSubstrate/DynamicLibraries",
    "Library/PreferenceBundles",           "Library/PreferenceLoader/Preferences",
    "Library/Application Support/Sonavue", "Applications",
};

Failure failure(const fs::path& path, const std::error_code& error) {
  return path.string() + ": " + error.message();
}

/// Returns whether the folder is missing, or has nothing but the lock of its owner.
bool is_untouched(const fs::path& root) {
  std::error_code error;
  fs::directory_iterator entries(root, error);
  for (const auto end = fs::end(entries); !error && entries != end; entries.increment(error)) {
    if (entries->path().filename() != FolderLock::kFile) return false;
  }
  return true;
}

bool is_being_made(const fs::path& root) {
  std::error_code error;
  return is_untouched(root) || fs::exists(root / kBeingMade, error);
}

/// A folder of the device, for which `path` is only a name to report.
struct Place {
  Descriptor folder;
  fs::path path;
};

Failure open_root(const fs::path& root, Place& place) {
  std::error_code error;
  fs::create_directories(root, error);
  if (!error) place = {files::open_folder(root, error), root};
  return error ? Failure(failure(root, error)) : std::nullopt;
}

struct CopyRules {
  files::Keep keep;
  files::Durability durability;
};

constexpr CopyRules kFirstFiles{files::Keep::kEvery, files::Durability::kFlushed};
constexpr CopyRules kStaging{files::Keep::kSameVersion, files::Durability::kUnflushed};

/// Every folder below the root must be the device's own: through a link, files would be written or
/// removed elsewhere.
Failure open_below(const Place& parent, const std::string& name, const CopyRules& rules,
                   Place& place) {
  std::error_code error;
  place = {files::open_or_make_folder(parent.folder.get(), name, rules.durability, error),
           parent.path / name};
  if (error == std::errc::too_many_symbolic_link_levels)
    return place.path.string() + ": a link is in the place of this folder";
  return error ? Failure(failure(place.path, error)) : std::nullopt;
}

Failure copy_tree(const fs::path& from, const Place& to, const CopyRules& rules) {
  std::error_code error;
  for (const fs::path& path : files::paths_in(from, error)) {
    const std::string name = path.filename();
    const fs::file_status status = fs::status(path, error);
    if (error) return failure(path, error);
    if (fs::is_directory(status)) {
      Place below;
      if (auto failed = open_below(to, name, rules, below)) return failed;
      if (auto failed = copy_tree(path, below, rules)) return failed;
    } else if (fs::is_regular_file(status)) {
      error = files::copy_file(path, to.folder.get(), name, rules.keep, rules.durability);
      if (error) return failure(to.path / name, error);
    }
  }
  return error ? Failure(failure(from, error)) : std::nullopt;
}

/// The same for a tree that a build may lack.
Failure copy_tree_if_any(const fs::path& from, const Place& to, const CopyRules& rules) {
  std::error_code error;
  return fs::is_directory(from, error) ? copy_tree(from, to, rules) : std::nullopt;
}

Failure set_mark(const Place& root) {
  const Descriptor mark(openat(root.folder.get(), kBeingMade,
                               O_CREAT | O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
  if (!mark) return failure(root.path / kBeingMade, files::last_error());
  files::flush_folder(root.folder.get());
  return std::nullopt;
}

Failure remove_mark(const Place& root) {
  if (unlinkat(root.folder.get(), kBeingMade, 0) != 0 && errno != ENOENT)
    return failure(root.path / kBeingMade, files::last_error());
  files::flush_folder(root.folder.get());
  return std::nullopt;
}

/// The identifier in a property list that the build wrote; empty when it has none.
std::string identifier_in(const fs::path& info) {
  const std::string text = files::read_file(info).bytes;
  constexpr std::string_view kOpen = "<string>";
  const auto key = text.find("<key>CFBundleIdentifier</key>");
  const auto open = key == std::string::npos ? key : text.find(kOpen, key);
  if (open == std::string::npos) return {};
  const auto start = open + kOpen.size();
  return text.substr(start, text.find('<', start) - start);
}

}  // namespace

Failure take_device_root(const fs::path& root, FolderLock& lock, bool& has_owner) {
  std::error_code error;
  fs::create_directories(root, error);
  if (error) return failure(root, error);
  const auto outcome = lock.take(root);
  has_owner = outcome == FolderLock::Outcome::HasOwner;
  if (outcome == FolderLock::Outcome::Failed)
    return failure(root, {errno, std::generic_category()});
  return std::nullopt;
}

Failure prepare_device_root(const fs::path& root) {
  for (const char* folder : kFolders) {
    std::error_code error;
    fs::create_directories(root / folder, error);
    if (error) return failure(root, error);
    if (access((root / folder).c_str(), W_OK | X_OK) != 0)
      return failure(root / folder, {errno, std::generic_category()});
  }
  return std::nullopt;
}

Failure copy_first_files(const fs::path& first_files, const fs::path& root) {
  if (!is_being_made(root)) return std::nullopt;
  Place place;
  if (auto failed = open_root(root, place)) return failed;
  if (auto failed = set_mark(place)) return failed;
  if (auto failed = copy_tree_if_any(first_files, place, kFirstFiles)) return failed;
  return remove_mark(place);
}

Failure stage(const StagingSource& source, const fs::path& root,
              std::span<const std::string> without) {
  Place place;
  Place applications;
  if (auto failed = open_root(root, place)) return failed;
  if (auto failed = copy_tree_if_any(source.overlay, place, kStaging)) return failed;
  if (auto failed = open_below(place, "Applications", kStaging, applications)) return failed;
  std::error_code error;
  for (const fs::path& path : files::paths_in(source.applications, error)) {
    if (!fs::is_directory(path, error)) continue;
    const std::string name = path.filename();
    const auto identifier = identifier_in(path / "Info.plist");
    if (std::find(without.begin(), without.end(), identifier) != without.end()) {
      fs::remove_all(applications.path / name, error);
      if (error) return failure(applications.path / name, error);
      continue;
    }
    Place application;
    if (auto failed = open_below(applications, name, kStaging, application)) return failed;
    if (auto failed = copy_tree(path, application, kStaging)) return failed;
  }
  return std::nullopt;
}

}  // namespace host::launcher
