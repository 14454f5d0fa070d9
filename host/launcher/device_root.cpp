#include "host/launcher/device_root.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

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

bool is_same(const fs::path& from, const fs::path& to) {
  std::error_code error;
  const auto status = fs::symlink_status(to, error);
  if (error || !fs::is_regular_file(status)) return false;
  const bool same_size = fs::file_size(from, error) == fs::file_size(to, error);
  return same_size && fs::last_write_time(from, error) == fs::last_write_time(to, error) && !error;
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

Failure copy_if_missing(const fs::path& from, const fs::path& to) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(to, error))) return std::nullopt;
  return copy_if_changed(from, to);
}

Failure copy_tree(const fs::path& from, const fs::path& to,
                  Failure (*copy)(const fs::path& from, const fs::path& to)) {
  std::error_code error;
  if (!fs::is_directory(from, error)) return std::nullopt;
  fs::create_directories(to, error);
  if (error) return failure(to, error);
  fs::recursive_directory_iterator entries(from, error);
  for (const auto end = fs::end(entries); !error && entries != end; entries.increment(error)) {
    const fs::path target = to / fs::relative(entries->path(), from);
    if (entries->is_directory()) {
      fs::create_directories(target, error);
      if (error) return failure(target, error);
    } else if (entries->is_regular_file()) {
      if (auto failed = copy(entries->path(), target)) return failed;
    }
  }
  if (error) return failure(from, error);
  return std::nullopt;
}

/// The identifier in a property list that the build wrote; empty when it has none.
std::string identifier_in(const fs::path& info) {
  std::ifstream file(info);
  const std::string text(std::istreambuf_iterator<char>(file), {});
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
  std::error_code error;
  fs::create_directories(root, error);
  if (error) return failure(root, error);
  const fs::path mark = root / kBeingMade;
  if (!std::ofstream(mark)) return failure(mark, {errno, std::generic_category()});
  if (auto failed = copy_tree(first_files, root, &copy_if_missing)) return failed;
  fs::remove(mark, error);
  if (error) return failure(mark, error);
  return std::nullopt;
}

Failure copy_if_changed(const fs::path& from, const fs::path& to) {
  if (is_same(from, to)) return std::nullopt;
  const fs::path beside = to.parent_path() / ("." + to.filename().string() + ".staging");
  std::error_code error;
  fs::copy_file(from, beside, fs::copy_options::overwrite_existing, error);
  if (!error) fs::last_write_time(beside, fs::last_write_time(from, error), error);
  if (!error) fs::rename(beside, to, error);
  if (!error) return std::nullopt;
  std::error_code ignored;
  fs::remove(beside, ignored);
  return failure(to, error);
}

Failure stage(const StagingSource& source, const fs::path& root,
              std::span<const std::string> without) {
  if (auto failed = copy_tree(source.overlay, root, &copy_if_changed)) return failed;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(source.applications, error)) {
    const fs::path target = root / "Applications" / entry.path().filename();
    const auto identifier = identifier_in(entry.path() / "Info.plist");
    if (std::find(without.begin(), without.end(), identifier) != without.end()) {
      fs::remove_all(target, error);
      if (error) return failure(target, error);
    } else if (auto failed = copy_tree(entry.path(), target, &copy_if_changed)) {
      return failed;
    }
  }
  return std::nullopt;
}

}  // namespace host::launcher
