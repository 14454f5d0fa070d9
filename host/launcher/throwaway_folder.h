#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "host/launcher/folder_lock.h"

namespace host::launcher {

/// The folders for temporary files, the best one first.
std::vector<std::filesystem::path> temporary_folders();
/// The same for small files of a session, such as sockets. The name of the last is always short.
std::vector<std::filesystem::path> session_folders();

/// A new temporary folder that only this user may enter. The destructor removes it with all its
/// contents; if the process is killed, the next one does.
class ThrowawayFolder {
 public:
  using Fits = std::function<bool(const std::filesystem::path& folder)>;

  ThrowawayFolder() : ThrowawayFolder(temporary_folders()) {}
  /// Makes the folder in the first of these where it can be made and fits.
  explicit ThrowawayFolder(
      const std::vector<std::filesystem::path>& parents,
      const Fits& fits = [](const std::filesystem::path&) { return true; });
  ~ThrowawayFolder();
  ThrowawayFolder(const ThrowawayFolder&) = delete;
  ThrowawayFolder& operator=(const ThrowawayFolder&) = delete;

  /// Empty when the folder could not be made.
  const std::filesystem::path& path() const { return path_; }

 private:
  bool make_in(const std::filesystem::path& parent, const Fits& fits);

  std::filesystem::path path_;
  FolderLock lock_;
};

/// Removes this user's throwaway folders whose process is gone.
void remove_abandoned_folders();

}  // namespace host::launcher
