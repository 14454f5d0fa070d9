#include "host/foundation/atomic_write.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace host::foundation {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kPermissions = 07777;
// Other writers of the same file may repeatedly take the name between our steps.
constexpr int kMostAttempts = 1000;

std::string folder_of(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

/// An unnamed file, which disappears with its process.
class NamelessFile {
 public:
  explicit NamelessFile(const std::string& folder)
      : number_(open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kNewFileMode)) {}
  ~NamelessFile() {
    if (number_ >= 0) close(number_);
  }
  NamelessFile(const NamelessFile&) = delete;
  NamelessFile& operator=(const NamelessFile&) = delete;

  bool is_open() const { return number_ >= 0; }
  bool take_permissions_of(const std::string& path) const {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return true;
    return S_ISREG(status.st_mode) && fchmod(number_, status.st_mode & kPermissions) == 0;
  }
  bool fill(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = write(number_, bytes.data(), bytes.size());
      if (count < 0 && errno != EINTR) return false;
      if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }
  bool name(const std::string& path) const {
    const std::string own = "/proc/self/fd/" + std::to_string(number_);
    return linkat(AT_FDCWD, own.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }

 private:
  int number_;
};

}  // namespace

std::string staged_beside(const std::string& path) {
  const auto name = path.rfind('/') + 1;
  return path.substr(0, name) + "." + path.substr(name) + ".staged";
}

bool write_atomically(const std::string& path, std::string_view bytes) {
  const NamelessFile file(folder_of(path));
  if (!file.is_open() || !file.take_permissions_of(path) || !file.fill(bytes)) return false;
  const std::string staged = staged_beside(path);
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    if (file.name(staged)) {
      // A writer that finds the name taken removes it. Our file then counts as written and
      // immediately replaced.
      if (rename(staged.c_str(), path.c_str()) == 0 || errno == ENOENT) return true;
      unlink(staged.c_str());
      return false;
    }
    if (errno != EEXIST || (unlink(staged.c_str()) != 0 && errno != ENOENT)) return false;
  }
  return false;
}

}  // namespace host::foundation
