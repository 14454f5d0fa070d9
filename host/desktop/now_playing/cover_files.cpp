#include "host/desktop/now_playing/cover_files.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "host/basics/user_warning.h"
#include "host/files/folder.h"
#include "host/files/new_file.h"
#include "host/media/picture.h"
#include "host/runtime/log.h"

namespace host::desktop {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kReadableByAll = 0644;

bool is_there(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

/// A cache is not flushed: what a power failure takes of it is made again.
bool write_file(const fs::path& path, const std::vector<std::uint8_t>& bytes) {
  if (bytes.empty()) return false;
  std::error_code ignored;
  fs::create_directories(path.parent_path(), ignored);
  const Descriptor folder(open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  files::NewFile file(folder.get(), kReadableByAll, files::Durability::kUnflushed);
  const std::string_view contents(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return !file.error() && !file.write(contents) && !file.replace(path.filename());
}

}  // namespace

CoverFiles::~CoverFiles() {
  if (watch_) loop_.unwatch(watch_);
}

std::string CoverFiles::path_of(std::uint64_t key) const {
  return fmt::format("{}/{:016x}.jpg", folder_, key);
}

std::optional<std::string> CoverFiles::file_of(const media::CoverFile& cover) {
  if (cover.key == 0 || broken_.contains(cover.key)) return std::nullopt;
  std::string path = path_of(cover.key);
  if (is_there(path)) return path;
  if (!is_coming(cover)) request(cover);
  return std::nullopt;
}

void CoverFiles::request(const media::CoverFile& cover) {
  if (!watch_) watch_ = loop_.watch(decoder_.descriptor(), [this] { receive(); });
  coming_.insert(cover.key);
  decoder_.request({cover, kLongestSide});
}

void CoverFiles::receive() {
  while (const auto decoded = decoder_.take()) {
    const std::uint64_t key = decoded->request.cover.key;
    coming_.erase(key);
    if (!decoded->picture || !write(key, *decoded->picture)) broken_.insert(key);
    if (on_ready) on_ready();
  }
}

bool CoverFiles::write(std::uint64_t key, const media::Picture& picture) {
  if (write_file(path_of(key), media::jpeg_of(picture))) {
    remove_oldest();
    return true;
  }
  if (std::exchange(has_complained_, true)) return false;
  spdlog::warn("covers cannot be written to {}: other programs show songs without them", folder_);
  warn_user(kDiskWarning);
  return false;
}

void CoverFiles::remove_oldest() const {
  std::error_code error;
  std::vector<fs::path> files = files::paths_in(folder_, error);
  if (files.size() <= kMostFiles) return;
  const auto age = [](const fs::path& file) {
    std::error_code ignored;
    return fs::last_write_time(file, ignored);
  };
  std::ranges::sort(files, {}, age);
  files.resize(files.size() - kMostFiles);
  for (const fs::path& file : files)
    fs::remove(file, error);
}

}  // namespace host::desktop
