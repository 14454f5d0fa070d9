#include "host/files/folder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace host::files {

std::string folder_of(std::string_view path) {
  const auto slash = path.rfind('/');
  if (slash == path.npos) return ".";
  return std::string(slash == 0 ? "/" : path.substr(0, slash));
}

std::string name_of(std::string_view path) {
  return std::string(path.substr(path.rfind('/') + 1));
}

Descriptor open_folder(const std::string& path, std::error_code& error) {
  Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder) error = last_error();
  return folder;
}

void flush_folder(int folder) {
  fsync(folder);
}

std::error_code make_folders(const std::string& path) {
  constexpr mode_t kMode = 0777;
  if (mkdir(path.c_str(), kMode) != 0) {
    if (errno == EEXIST) return {};
    const std::string above = folder_of(path);
    if (errno != ENOENT || above == path) return last_error();
    if (const auto error = make_folders(above)) return error;
    if (mkdir(path.c_str(), kMode) != 0) return errno == EEXIST ? std::error_code() : last_error();
  }
  std::error_code ignored;
  if (const Descriptor above = open_folder(folder_of(path), ignored)) flush_folder(above.get());
  return {};
}

std::error_code move_folder(const std::string& from, const std::string& to) {
  std::error_code error;
  const Descriptor folder = open_folder(from, error);
  if (error) return error;
  // One flush of the whole file system costs less than one of each file.
  if (syncfs(folder.get()) != 0) return last_error();
  if (rename(from.c_str(), to.c_str()) != 0) return last_error();
  if (const Descriptor parent = open_folder(folder_of(to), error)) flush_folder(parent.get());
  return {};
}

std::vector<std::filesystem::path> paths_in(const std::filesystem::path& folder,
                                            std::error_code& error) {
  std::vector<std::filesystem::path> paths;
  std::filesystem::directory_iterator entries(folder, error);
  for (const std::filesystem::directory_iterator end; !error && entries != end;
       entries.increment(error))
    paths.push_back(entries->path());
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace host::files
