#include "host/launcher/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

// A folder that was abandoned can be removed just when it is taken.
constexpr int kMostAttempts = 10;

}  // namespace

FolderLock::Outcome FolderLock::take(const fs::path& folder) {
  return open_and_lock(folder / kFile, O_CREAT);
}

FolderLock::Outcome FolderLock::take_over(const fs::path& folder) {
  return open_and_lock(folder / kFile, 0);
}

FolderLock::Outcome FolderLock::open_and_lock(const fs::path& file, int flags) {
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    Descriptor opened(open(file.c_str(), flags | O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                           S_IRUSR | S_IWUSR));
    if (!opened) return Outcome::Failed;
    if (flock(opened.get(), LOCK_EX | LOCK_NB) != 0)
      return errno == EWOULDBLOCK ? Outcome::HasOwner : Outcome::Failed;
    struct stat status {};
    if (fstat(opened.get(), &status) != 0) return Outcome::Failed;
    if (status.st_nlink == 0) continue;
    // The owner before may not have had the time to leave.
    static_cast<void>(!ftruncate(opened.get(), 0));
    file_ = std::move(opened);
    return Outcome::Taken;
  }
  return Outcome::HasOwner;
}

void FolderLock::introduce(const fs::path& control_socket) const {
  const std::string text = std::to_string(getpid()) + "\n" + control_socket.string() + "\n";
  // Without the text the lock still holds, and a second start can only say that the folder is used.
  static_cast<void>(!ftruncate(file_.get(), 0));
  static_cast<void>(!pwrite(file_.get(), text.data(), text.size(), 0));
}

std::optional<FolderOwner> owner_of(const fs::path& folder) {
  std::ifstream file(folder / FolderLock::kFile);
  FolderOwner owner;
  std::string control_socket;
  if (!(file >> owner.process >> std::ws) || !std::getline(file, control_socket) || file.eof())
    return std::nullopt;
  owner.control_socket = control_socket;
  return owner;
}

}  // namespace host::launcher
