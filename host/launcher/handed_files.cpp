#include "host/launcher/handed_files.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>

#include "host/files/folder.h"
#include "host/files/replace_file.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kListPrefix = "play-";
// No path contains it.
constexpr char kEndOfPath = '\0';

std::string name_of_new_list() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return fmt::format("{}{:020}-{}", kListPrefix, now / std::chrono::nanoseconds(1), getpid());
}

void append_list(const fs::path& list, std::vector<std::string>& files) {
  std::ifstream file(list, std::ios::binary);
  for (std::string path; std::getline(file, path, kEndOfPath);)
    files.push_back(path);
}

}  // namespace

bool hand_over(const fs::path& folder, const std::vector<std::string>& files) {
  if (folder.empty()) return false;
  std::string list;
  for (const std::string& path : files)
    list += path + kEndOfPath;
  return !files::replace_file(folder / name_of_new_list(), list).error;
}

std::vector<std::string> take_handed_files(const fs::path& folder) {
  std::vector<std::string> files;
  std::error_code ignored;
  for (const fs::path& path : files::paths_in(folder, ignored)) {
    if (!path.filename().native().starts_with(kListPrefix)) continue;
    append_list(path, files);
    fs::remove(path, ignored);
  }
  return files;
}

}  // namespace host::launcher
