#include "host/files/copy_file.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>

#include "host/files/folder.h"

namespace host::files {
namespace {

constexpr mode_t kCopiedPermissions = 0777;

bool has_same_time(const timespec& one, const timespec& other) {
  return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

bool has_to_stay(const struct stat& from, int folder, const std::string& name, Keep keep) {
  struct stat to {};
  if (fstatat(folder, name.c_str(), &to, AT_SYMLINK_NOFOLLOW) != 0) return false;
  return keep == Keep::kEvery || (S_ISREG(to.st_mode) && to.st_size == from.st_size &&
                                  has_same_time(to.st_mtim, from.st_mtim));
}

std::error_code fill(const NewFile& file, int from, const struct stat& status) {
  if (file.error()) return file.error();
  for (off_t left = status.st_size; left > 0;) {
    const ssize_t count =
        sendfile(file.descriptor(), from, nullptr, static_cast<std::size_t>(left));
    if (count < 0 && errno != EINTR) return last_error();
    // The file has become shorter; the next start copies it again.
    if (count == 0) break;
    if (count > 0) left -= count;
  }
  const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, status.st_mtim};
  const bool is_done = fchmod(file.descriptor(), status.st_mode & kCopiedPermissions) == 0 &&
                       futimens(file.descriptor(), times.data()) == 0;
  return is_done ? std::error_code() : last_error();
}

}  // namespace

std::error_code copy_file(const std::string& from, int folder, const std::string& name, Keep keep,
                          Durability durability) {
  const Descriptor source(open(from.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!source || fstat(source.get(), &status) != 0) return last_error();
  if (has_to_stay(status, folder, name, keep)) return {};
  NewFile copy(folder, status.st_mode & kCopiedPermissions, durability);
  if (const auto error = fill(copy, source.get(), status)) return error;
  if (keep == Keep::kSameVersion) return copy.replace(name);
  const auto error = copy.take_free_name(name);
  return error == std::errc::file_exists ? std::error_code() : error;
}

Descriptor open_or_make_folder(int parent, const std::string& name, Durability durability,
                               std::error_code& error) {
  const bool is_made = mkdirat(parent, name.c_str(), 0777) == 0;
  if (is_made && durability == Durability::kFlushed) flush_folder(parent);
  if (!is_made && errno != EEXIST) {
    error = last_error();
    return {};
  }
  Descriptor folder(openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (folder) return folder;
  error = last_error();
  struct stat status {};
  if (fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode))
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
  return {};
}

}  // namespace host::files
